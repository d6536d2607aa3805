#pragma once

#include <QPointF>

namespace Kestrune {

struct PointerSample
{
    QPointF location;         ///< Screen coordinates in points, y growing upwards.
    bool primaryDown = false; ///< The primary button is down, or was pressed since the sample before.

    bool operator==(const PointerSample &) const = default;
};

/// The pointer's position and primary button, wherever it is on the desktop. Main thread only.
class Pointer
{
public:
    virtual ~Pointer() = default;

    /// Where the pointer is now.
    virtual QPointF location() = 0;

    /// Where the pointer is now; while no button is down and it moves outside every panel's hit area, an
    /// earlier place outside all of them may be given instead. A click so short that it began and ended since
    /// the previous sample is reported once as a pressed sample at the place of the press, so that no press
    /// is ever missed.
    virtual PointerSample sample() = 0;
};

} // namespace Kestrune
