#pragma once

#include "Async/LoopThread.h"
#include "NotchKit/Platform/LocationService.h"

namespace Kestrune {

/// Location from GeoClue, asked on a thread of its own, which the first request starts: the system bus may
/// let one wait. Nothing stays connected between requests; its end gives up what is under way.
class GeoClueLocation : public LocationService
{
public:
    QFuture<std::optional<Coordinate>> locate() override;

private:
    LoopThread m_loop{"location"};
};

} // namespace Kestrune
