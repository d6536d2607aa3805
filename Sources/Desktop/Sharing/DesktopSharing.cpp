#include "DesktopSharing.h"

#include "DeviceSearch.h"
#include "Log.h"

namespace Kestrune {

Q_LOGGING_CATEGORY(sharingLog, "kestrune.sharing", QtWarningMsg)

QFuture<SharingDevices> DesktopSharing::devices()
{
    const auto search = std::make_shared<DeviceSearch>();
    m_kdeConnect.search(search);
    m_gsConnect.search(search);
    return search->pledge.future();
}

QFuture<bool> DesktopSharing::send(const QString &device, const QList<QUrl> &files)
{
    return GsConnectService::isOne(device) ? m_gsConnect.send(device, files)
                                           : m_kdeConnect.send(device, files);
}

} // namespace Kestrune
