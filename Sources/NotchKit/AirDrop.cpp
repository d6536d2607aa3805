#include "AirDrop.h"

namespace Kestrune {

AirDrop::AirDrop(FileSharing &sharing, QObject *parent)
    : QObject(parent)
    , m_sharing(sharing)
{}

int AirDrop::send(const QList<QUrl> &files)
{
    cancel();
    m_files = files;
    m_files.removeIf([](const QUrl &file) { return !file.isLocalFile(); });
    if (!m_files.isEmpty())
        m_search.start(&AirDrop::askForDevices, this);
    return m_request;
}

QCoro::Task<> AirDrop::askForDevices()
{
    const QFuture<QList<SharingDevice>> asked = m_sharing.devices();
    const QList<SharingDevice> devices = co_await until(asked);
    found(devices);
}

void AirDrop::choose(int index)
{
    const QList<QUrl> files = m_files;
    const SharingDevice device = m_devices.value(index);
    cancel();
    if (!device.id.isEmpty())
        m_sharing.send(device.id, files);
}

void AirDrop::cancel()
{
    m_request = m_request + 1;
    m_search.end();
    m_files.clear();
    m_devices.clear();
    m_choices = QStringList();
}

void AirDrop::found(const QList<SharingDevice> &devices)
{
    m_devices = devices;
    if (devices.size() < 2) {
        choose(0);
        return;
    }
    QStringList names;
    for (const SharingDevice &device : devices)
        names.append(device.name);
    m_choices = names;
}

} // namespace Kestrune
