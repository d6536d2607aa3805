#pragma once

#include <QHash>
#include <QPointF>
#include <QRectF>

class QScreen;

/// Qt counts from the top left; the program counts points from the bottom left of the main display. Here one
/// turns into the other. Main thread only.
namespace Kestrune::Points {

/// Where screens are by their names, in device pixels.
using Places = QHash<QString, QRect>;

/// What the window system says where Qt may be wrong; a screen that is not named is where Qt says. Whether
/// that is something new.
bool setPlaces(const Places &places);

/// Where a screen is in Qt's own coordinates.
QRect geometryOf(const QScreen &screen);

/// Where a screen is in device pixels.
QRect pixelsOf(const QScreen &screen);

/// A screen's frame in points, y growing upwards.
QRectF frameOf(const QScreen &screen);

/// A rectangle in points, y growing upwards, in Qt's own coordinates, y growing downwards.
QRectF toQt(const QRectF &points);

/// A place in Qt's own coordinates in points, y growing upwards.
QPointF fromQt(const QPointF &place);

/// The screen that a panel in that frame belongs to, in Qt's own coordinates: the one that has the middle of
/// its upper edge, or the main one; null while there is none.
QScreen *screenAt(const QRectF &qtFrame);

} // namespace Kestrune::Points
