#pragma once

#include <QList>
#include <QObject>
#include <QRectF>
#include <QString>

#include <optional>

namespace Kestrune {

/// One display as the geometry sees it. Screen coordinates are points with the origin at the bottom left
/// of the main display, y growing upwards.
struct Display
{
    QString name;           ///< Output name ("eDP-1"): the display's identity while connected.
    QRectF frame;           ///< The whole display; y() is its bottom edge.
    double safeAreaTop = 0; ///< Height of the camera housing, 0 without one.
    std::optional<QRectF> auxiliaryTopLeft;  ///< Usable area left of the housing.
    std::optional<QRectF> auxiliaryTopRight; ///< Usable area right of the housing.
    double panelsTop =
        0; ///< Height of the desktop's own panels at the middle of the top edge, as far as told.

    bool operator==(const Display &) const = default;
};

/// The connected displays. Main thread only; every call answers from memory.
class Displays : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// All displays in the platform's order, mirrored ones once.
    virtual QList<Display> all() const = 0;

    /// The main display; nothing while none is connected.
    virtual std::optional<Display> main() const = 0;

    /// The user has described camera housings anew; `changed` follows where that makes a difference.
    virtual void housingsChanged() = 0;

Q_SIGNALS:
    /// A display came, went, moved, or changed its size, scale or camera housing, or a panel
    /// at its top edge did.
    void changed();
};

} // namespace Kestrune
