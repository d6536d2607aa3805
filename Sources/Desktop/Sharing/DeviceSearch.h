#pragma once

#include "Async/Pledge.h"
#include "NotchKit/Platform/FileSharing.h"

#include <QDBusMessage>

namespace Kestrune {

/// What one question for devices has found so far, by all services. It is answered when the last call that
/// holds it has been, or has been given up.
struct DeviceSearch
{
    static constexpr qsizetype kMostDevices = 64; ///< Of a service; each is asked a question of its own.
    static constexpr qsizetype kLongestName = 200;
    static constexpr int kTimeout = 1500; ///< Milliseconds of each call.

    DeviceSearch() = default;
    ~DeviceSearch();
    Q_DISABLE_COPY_MOVE(DeviceSearch)

    /// A service's first reply: one that answers late or with an error runs all the same.
    void heard(const QDBusMessage &reply);

    Pledge<SharingDevices> pledge;
    SharingDevices found;
};

} // namespace Kestrune
