#include "DeviceSearch.h"

#include <QDBusError>

#include <algorithm>

namespace Kestrune {

DeviceSearch::~DeviceSearch()
{
    std::ranges::sort(found.devices, [](const SharingDevice &one, const SharingDevice &other) {
        return std::pair(one.name, one.id) < std::pair(other.name, other.id);
    });
    pledge.give(found);
}

void DeviceSearch::heard(const QDBusMessage &reply)
{
    const auto error = QDBusError(reply).type();
    const bool isAbsent = error == QDBusError::ServiceUnknown || error == QDBusError::Disconnected ||
                          reply.errorName() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
    found.served = found.served || !isAbsent;
}

} // namespace Kestrune
