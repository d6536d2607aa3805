#include "AirDrop.h"

#include <QFutureWatcher>

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
        askForDevices();
    return m_request;
}

void AirDrop::askForDevices()
{
    // No then(): its answer must not outlive this object.
    auto *answer = new QFutureWatcher<QList<SharingDevice>>(this);
    connect(answer, &QFutureWatcherBase::finished, this, [this, answer, request = m_request.value()] {
        if (request == m_request)
            found(answer->result());
        answer->deleteLater();
    });
    answer->setFuture(m_sharing.devices());
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
    m_request = m_request + 1; // What a device list is still asked for, it is asked for in vain.
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
