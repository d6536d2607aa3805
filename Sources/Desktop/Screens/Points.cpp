#include "Points.h"

#include <QGuiApplication>
#include <QScreen>

namespace Kestrune::Points {

namespace {

/// Qt's y of the main display's bottom edge, where y is 0 in points.
double baseline()
{
    const QScreen *main = QGuiApplication::primaryScreen();
    return main ? QRectF(main->geometry()).bottom() : 0;
}

QRectF turned(const QRectF &rect)
{
    return {rect.x(), baseline() - rect.y() - rect.height(), rect.width(), rect.height()};
}

} // namespace

QRectF frameOf(const QScreen &screen) { return turned(screen.geometry()); }

QRectF toQt(const QRectF &points) { return turned(points); }

QPointF fromQt(const QPointF &place) { return {place.x(), baseline() - place.y()}; }

QScreen *screenAt(const QRectF &qtFrame)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (QRectF(screen->geometry()).contains(QPointF(qtFrame.center().x(), qtFrame.top() + 1)))
            return screen;
    }
    return QGuiApplication::primaryScreen();
}

} // namespace Kestrune::Points
