#include "NotchShape.h"

#include <algorithm>

namespace Kestrune {

QPainterPath NotchShape::path(const QRectF &rect) const
{
    const double t = std::min(rect.width() * 0.25, topRadius);
    const double b = std::min({rect.width() * 0.25, rect.height() * 0.5, bottomRadius});
    const double left = rect.left();
    const double right = rect.right();
    const double top = rect.top();
    const double bottom = rect.bottom();

    QPainterPath path({left, top});
    path.quadTo({left + t, top}, {left + t, top + t});
    path.lineTo(left + t, bottom - b);
    path.quadTo({left + t, bottom}, {left + t + b, bottom});
    path.lineTo(right - t - b, bottom);
    path.quadTo({right - t, bottom}, {right - t, bottom - b});
    path.lineTo(right - t, top + t);
    path.quadTo({right - t, top}, {right, top});
    path.closeSubpath();
    return path;
}

} // namespace Kestrune
