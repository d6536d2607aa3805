#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Lets files be dragged out of a view into other programs. It is a child of a mouse area, whose presses and
/// moves it is told of; once the pointer has moved far enough with the button down, the drag begins.
class FileDrag : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QUrl> urls MEMBER m_urls)
    /// What the pointer carries: the picture, or where there is none, the symbol.
    Q_PROPERTY(QImage picture MEMBER m_picture RESET dropPicture)
    Q_PROPERTY(QString symbol MEMBER m_symbol)
    Q_PROPERTY(bool active READ active NOTIFY activeChanged)

public:
    using QObject::QObject;

    void dropPicture() { m_picture = {}; }

    bool active() const { return m_active; }

    Q_INVOKABLE void press(double x, double y) { m_pressed = {x, y}; }

    /// Returns only when the drag has ended; until then the event loop runs.
    Q_INVOKABLE void move(double x, double y);

Q_SIGNALS:
    void activeChanged();

private:
    QPixmap carried() const;
    QPixmap drawnSymbol() const;
    void run();
    void setActive(bool active);

    QList<QUrl> m_urls;
    QImage m_picture;
    QString m_symbol;
    QPointF m_pressed;
    bool m_active = false;
};

} // namespace Kestrune
