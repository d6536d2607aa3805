#include "X11Coordinates.h"

#include <QGuiApplication>
#include <QScreen>

namespace Kestrune::X11 {

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

/// A screen keeps its place in device pixels; only its size is divided by its scale.
QRectF pixelsOf(const QScreen &screen)
{
    const QRectF geometry = screen.geometry();
    return {geometry.topLeft(), geometry.size() * screen.devicePixelRatio()};
}

} // namespace

QRectF frameOf(const QScreen &screen) { return turned(screen.geometry()); }

QRectF toQt(const QRectF &points) { return turned(points); }

QPointF toPoints(int x, int y)
{
    const QPointF centre(x + 0.5, y + 0.5);
    QPointF place = centre;
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRectF pixels = pixelsOf(*screen);
        if (pixels.contains(centre)) {
            place = pixels.topLeft() + (centre - pixels.topLeft()) / screen->devicePixelRatio();
            break;
        }
    }
    return {place.x(), baseline() - place.y()};
}

} // namespace Kestrune::X11
