#pragma once

#include <QPainterPath>
#include <QRectF>

namespace Kestrune {

/// The outline of the notch: a body with rounded bottom corners whose top corners flare out into the
/// display's edge. View coordinates, y growing downwards.
struct NotchShape
{
    double topRadius = 0;    ///< Points; at most a quarter of the width is used.
    double bottomRadius = 0; ///< Points; at most a quarter of the width and half the height are used.

    /// The outline for `rect`: its flat top edge spans the whole width, the body is inset by the top radius.
    QPainterPath path(const QRectF &rect) const;

    bool operator==(const NotchShape &) const = default;
};

} // namespace Kestrune
