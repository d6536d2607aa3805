#pragma once

#include <QPointer>
#include <QQuickItem>

namespace Kestrune {

/// Scrolls a `Flickable` so that what has the keyboard in it is in sight.
class FocusReveal : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *flickable READ flickable WRITE setFlickable NOTIFY flickableChanged)

public:
    using QObject::QObject;

    QQuickItem *flickable() const { return m_flickable; }
    void setFlickable(QQuickItem *flickable);

    /// Where to scroll so that `length` points hold what lies between `first` and `last`, from `at` with the
    /// least motion; the beginning of what is longer.
    static double revealing(double at, double length, double first, double last);

Q_SIGNALS:
    void flickableChanged();

private:
    void watch(QQuickWindow *window);
    void reveal();

    QPointer<QQuickItem> m_flickable;
    QMetaObject::Connection m_focus;
};

} // namespace Kestrune
