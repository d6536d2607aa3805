#pragma once

#include <QPointF>
#include <QRect>
#include <QRectF>

class QScreen;

/// The window system counts device pixels from the top left; the program counts points from the bottom
/// left of the main display. Here one turns into the other.
namespace Kestrune::X11 {

/// A screen's frame in points, y growing upwards.
QRectF frameOf(const QScreen &screen);

/// A rectangle in points, y growing upwards, in Qt's own coordinates, y growing downwards.
QRectF toQt(const QRectF &points);

/// The centre of the device pixel (x, y) in points, y growing upwards.
QPointF toPoints(int x, int y);

} // namespace Kestrune::X11
