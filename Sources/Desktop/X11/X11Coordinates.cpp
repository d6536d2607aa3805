#include "X11Coordinates.h"

#include "Desktop/Screens/Points.h"

#include <QGuiApplication>
#include <QScreen>

namespace Kestrune::X11 {

namespace {

/// A screen keeps its place in device pixels; only its size is divided by its scale.
QRectF pixelsOf(const QScreen &screen)
{
    const QRectF geometry = Points::geometryOf(screen);
    return {geometry.topLeft(), geometry.size() * screen.devicePixelRatio()};
}

} // namespace

QPointF toPoints(int x, int y)
{
    const QPointF centre(x + 0.5, y + 0.5);
    for (const QScreen *screen : QGuiApplication::screens()) {
        const QRectF pixels = pixelsOf(*screen);
        if (pixels.contains(centre))
            return Points::fromQt(pixels.topLeft() +
                                  (centre - pixels.topLeft()) / screen->devicePixelRatio());
    }
    return Points::fromQt(centre);
}

} // namespace Kestrune::X11
