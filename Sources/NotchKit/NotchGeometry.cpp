#include "NotchGeometry.h"

namespace Kestrune {

namespace {

double midX(const QRectF &frame) { return frame.x() + frame.width() / 2; }
double topEdge(const NotchGeometry &notch)
{
    return notch.screenFrame.y() + notch.screenFrame.height() - notch.topInset;
}

} // namespace

NotchGeometry::NotchGeometry(const Display &display)
    : screenFrame(display.frame)
    , notchSize(fallbackNotchSize)
{
    if (display.safeAreaTop <= 0 || !display.auxiliaryTopLeft || !display.auxiliaryTopRight)
        return;
    const double beside = display.auxiliaryTopLeft->width() + display.auxiliaryTopRight->width();
    notchSize = QSizeF(display.frame.width() - beside, display.safeAreaTop);
    hasHardwareNotch = true;
}

QRectF NotchGeometry::panelFrame() const
{
    return {midX(screenFrame) - panelSize.width() / 2, topEdge(*this) - panelSize.height(), panelSize.width(),
            panelSize.height()};
}

QRectF NotchGeometry::hitRect(bool expanded, bool activity) const
{
    const QSizeF size = shapeSize(expanded, activity);
    const double margin = expanded ? 8 : 6;
    return {midX(screenFrame) - size.width() / 2 - margin, topEdge(*this) - size.height() - margin,
            size.width() + 2 * margin, size.height() + margin + 1};
}

QSizeF NotchGeometry::shapeSize(bool expanded, bool activity) const
{
    if (expanded)
        return expandedSize;
    return {notchSize.width() + (activity ? 2 * activityWing : 0), notchSize.height()};
}

} // namespace Kestrune
