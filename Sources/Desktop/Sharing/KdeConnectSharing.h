#pragma once

#include "NotchKit/Platform/FileSharing.h"

#include <QDBusConnection>
#include <QObject>

namespace Kestrune {

/// Sends files over KDE Connect to the devices that are paired with this one.
class KdeConnectSharing : public FileSharing
{
public:
    explicit KdeConnectSharing(const QDBusConnection &bus)
        : m_bus(bus)
    {}

    QFuture<QList<SharingDevice>> devices() override;
    void send(const QString &device, const QList<QUrl> &files) override;

private:
    struct Search;
    void keepIfItTakesFiles(const SharingDevice &device, const std::shared_ptr<Search> &search);

    QDBusConnection m_bus;
    QObject m_answers; ///< Ends the calls that are under way with this object.
};

} // namespace Kestrune
