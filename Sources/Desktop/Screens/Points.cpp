#include "Points.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>
#include <utility>

namespace Kestrune::Points {

namespace {

Places &placesToldOf()
{
    static Places places;
    return places;
}

/// But for what a scale rounds.
bool agrees(const QRect &geometry, double scale, const QRect &pixels)
{
    const auto isNear = [scale](int points, int count) { return std::abs(points * scale - count) <= scale; };
    return geometry.topLeft() == pixels.topLeft() && isNear(geometry.width(), pixels.width()) &&
           isNear(geometry.height(), pixels.height());
}

/// Qt's y of the main display's bottom edge, where y is 0 in points.
double baseline()
{
    const QScreen *main = QGuiApplication::primaryScreen();
    return main ? QRectF(geometryOf(*main)).bottom() : 0;
}

QRectF turned(const QRectF &rect)
{
    return {rect.x(), baseline() - rect.y() - rect.height(), rect.width(), rect.height()};
}

} // namespace

bool setPlaces(const Places &places) { return std::exchange(placesToldOf(), places) != places; }

QRect geometryOf(const QScreen &screen)
{
    const QRect geometry = screen.geometry();
    const QRect pixels = placesToldOf().value(screen.name());
    const double scale = screen.devicePixelRatio();
    if (pixels.isEmpty() || agrees(geometry, scale, pixels))
        return geometry;
    return {pixels.topLeft(),
            (QSizeF(pixels.size()) / scale).toSize()}; // Only the size is divided by the scale.
}

QRect pixelsOf(const QScreen &screen)
{
    const QRect place = geometryOf(screen);
    return {place.topLeft(), place.size() * screen.devicePixelRatio()}; // As above.
}

QRectF frameOf(const QScreen &screen) { return turned(geometryOf(screen)); }

QRectF toQt(const QRectF &points) { return turned(points); }

QPointF fromQt(const QPointF &place) { return {place.x(), baseline() - place.y()}; }

QScreen *screenAt(const QRectF &qtFrame)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (QRectF(geometryOf(*screen)).contains(QPointF(qtFrame.center().x(), qtFrame.top() + 1)))
            return screen;
    }
    return QGuiApplication::primaryScreen();
}

} // namespace Kestrune::Points
