#pragma once

#include "NotchKit/Platform/Displays.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>

namespace Kestrune {

/// Where one display's notch is and how large. Screen coordinates are points with the origin at the bottom
/// left of the main display, y growing upwards; a rectangle's y() is its bottom edge.
class NotchGeometry
{
    Q_GADGET
    Q_PROPERTY(QSizeF notchSize MEMBER notchSize)
    Q_PROPERTY(bool hasHardwareNotch MEMBER hasHardwareNotch)

public:
    static constexpr QSizeF expandedSize{760, 330}; ///< The open notch.
    static constexpr double activityWing = 76;   ///< Added on each side of a closed notch with an activity.
    static constexpr QSizeF panelSize{880, 390}; ///< The host panel: room for the shadow and the animation.
    static constexpr QSizeF fallbackNotchSize{190, 32}; ///< Closed notch without a camera housing.

    QRectF screenFrame;            ///< The display's whole frame.
    QSizeF notchSize;              ///< The closed notch.
    bool hasHardwareNotch = false; ///< The size was measured from a camera housing.
    double topInset = 0;           ///< How far below the display's top edge the edge is that it hangs from.

    NotchGeometry() = default;
    NotchGeometry(const QRectF &screen, const QSizeF &notch, bool hardware)
        : screenFrame(screen)
        , notchSize(notch)
        , hasHardwareNotch(hardware)
    {}

    /// Measures the housing when the display reports both areas beside it, else takes the fallback size.
    explicit NotchGeometry(const Display &display);

    /// Where the host panel goes: centred, its top edge on the one that the notch hangs from.
    QRectF panelFrame() const;

    /// The area in which the pointer counts as over the notch: the shape with a margin left, right and
    /// below, and one point above the edge that it hangs from.
    QRectF hitRect(bool expanded, bool activity) const;

    /// The size in which the notch is drawn.
    Q_INVOKABLE QSizeF shapeSize(bool expanded, bool activity) const;

    bool operator==(const NotchGeometry &) const = default;
};

} // namespace Kestrune
