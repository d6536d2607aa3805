#pragma once

#include <QFuture>

#include <optional>

namespace Kestrune {

/// A place on earth, in degrees.
struct Coordinate
{
    double latitude = 0;
    double longitude = 0;

    bool operator==(const Coordinate &) const = default;
};

/// Where this computer is. Called on the main thread; nothing here blocks.
class LocationService
{
public:
    virtual ~LocationService() = default;

    /// One fix, to about a kilometre; nothing where it is not known or not allowed, within half a minute.
    /// Cancelling the future gives the request up.
    virtual QFuture<std::optional<Coordinate>> locate() = 0;
};

} // namespace Kestrune
