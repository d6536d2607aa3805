#pragma once

#include <QObject>
#include <QPointF>

namespace Kestrune {

struct PointerSample
{
    QPointF location;         ///< Screen coordinates in points, y growing upwards.
    bool primaryDown = false; ///< The primary button is down, or was pressed since the sample before.

    bool operator==(const PointerSample &) const = default;
};

/// The pointer's position and primary button, wherever it is on the desktop. Main thread only.
///
/// Nobody has to ask while it does nothing that matters: it tells when it stirs, and samples are taken from
/// then on until it is at rest.
class Pointer : public QObject
{
    Q_OBJECT

public:
    /// Where the pointer is now.
    virtual QPointF location() = 0;

    /// Where the pointer is now; while no button is down and it moves outside every panel's hit area, an
    /// earlier place outside all of them may be given instead. A click so short that it began and ended since
    /// the previous sample is reported once as a pressed sample at the place of the press, so that no press
    /// is ever missed.
    virtual PointerSample sample() = 0;

    /// Until `stirred` comes, a further sample says the same as the last one, or of another place outside
    /// every panel's hit area.
    virtual bool isAtRest() const = 0;

Q_SIGNALS:
    /// The pointer came over a panel's hit area or left it, moved while something is dragged over one, or a
    /// button went down anywhere that this program hears of.
    void stirred();
};

} // namespace Kestrune
