#pragma once

#include <QPointF>

/// The X server counts device pixels from the top left; the program counts points from the bottom left of the
/// main display. Here one turns into the other.
namespace Kestrune::X11 {

/// The centre of the device pixel (x, y) in points, y growing upwards.
QPointF toPoints(int x, int y);

} // namespace Kestrune::X11
