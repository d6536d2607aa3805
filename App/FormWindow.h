#pragma once

#include <QPointer>
#include <QQuickWindow>
#include <QVariantMap>

class QQmlEngine;

namespace Kestrune {

/// A window of the application besides the notch: made when it is opened, given up when it is closed. Main
/// thread only.
class FormWindow
{
public:
    /// `view` is the name of the window's QML file. What the properties point to outlives the object.
    FormWindow(QQmlEngine &engine, const QString &view, const QVariantMap &properties);
    virtual ~FormWindow();
    Q_DISABLE_COPY_MOVE(FormWindow)

    /// Shows the window, or brings it to the front when it is on screen already.
    void open();

    /// The window while it is open.
    QQuickWindow *window() const { return m_window; }

private:
    void make();
    void giveUp();

    QQmlEngine &m_engine;
    QString m_view;
    QVariantMap m_properties;
    QPointer<QQuickWindow> m_window;
};

} // namespace Kestrune
