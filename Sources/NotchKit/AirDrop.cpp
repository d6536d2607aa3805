#include "AirDrop.h"

#include "NotchStrings.h"

#include <utility>

namespace Kestrune {

namespace {

QString lackOf(const SharingDevices &found)
{
    return found.served ? QString()
                        : notchStrings(QT_TRANSLATE_NOOP(
                              "notch", "To send files, KDE Connect or GSConnect has to run."));
}

} // namespace

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

void AirDrop::look()
{
    if (!m_looks.isWaiting())
        m_looks.start(&AirDrop::askWhatLacks, this);
}

QCoro::Task<> AirDrop::askWhatLacks()
{
    const QFuture<SharingDevices> asked = m_sharing.devices();
    const SharingDevices found = co_await until(asked);
    m_lack = lackOf(found);
}

QCoro::Task<> AirDrop::askForDevices()
{
    const QFuture<SharingDevices> asked = m_sharing.devices();
    const SharingDevices devices = co_await until(asked);
    found(devices);
}

void AirDrop::choose(int index)
{
    const QList<QUrl> files = std::exchange(m_files, {});
    const SharingDevice device = std::exchange(m_devices, {}).value(index);
    m_choices = QStringList();
    if (!device.id.isEmpty() && !files.isEmpty())
        m_hands.restart(&AirDrop::hand, this, device, files);
}

QCoro::Task<> AirDrop::hand(SharingDevice device, QList<QUrl> files)
{
    m_notice = notchStrings(QT_TRANSLATE_NOOP("notch", "Sending to %1…")).arg(device.name);
    const QFuture<bool> handed = m_sharing.send(device.id, files);
    const bool taken = co_await until(handed);
    //: The files have been handed over to the service that sends them.
    m_notice = notchStrings(taken ? QT_TRANSLATE_NOOP("notch", "On the way to %1.")
                                  : QT_TRANSLATE_NOOP("notch", "Could not be sent to %1."))
                   .arg(device.name);
}

void AirDrop::cancel()
{
    m_request = m_request + 1;
    m_search.end();
    m_files.clear();
    m_devices.clear();
    m_choices = QStringList();
    m_notice = QString();
}

void AirDrop::found(const SharingDevices &found)
{
    m_lack = lackOf(found);
    m_devices = found.devices;
    if (m_devices.isEmpty()) {
        m_notice = m_lack.value().isEmpty()
                       ? notchStrings(QT_TRANSLATE_NOOP("notch", "No paired device is in reach."))
                       : m_lack.value();
        m_files.clear();
    } else if (m_devices.size() == 1 && m_files.size() == 1) {
        choose(0);
    } else {
        QStringList choices;
        for (const SharingDevice &device : std::as_const(m_devices))
            choices.append(choiceOf(device));
        m_choices = choices;
    }
}

QString AirDrop::choiceOf(const SharingDevice &device) const
{
    if (m_files.size() == 1)
        return device.name;
    //: An entry of a menu. %1 is the name of a phone or of another computer.
    return notchStrings(QT_TRANSLATE_N_NOOP("notch", "Send %Ln files to %1"), int(m_files.size()))
        .arg(device.name);
}

} // namespace Kestrune
