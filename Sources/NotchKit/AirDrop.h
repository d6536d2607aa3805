#pragma once

#include "Async/Scope.h"
#include "NotchKit/Platform/FileSharing.h"

#include <QObject>
#include <QProperty>
#include <QStringList>

namespace Kestrune {

/// Sends files to one of the user's devices: to the only one that can be reached at once, else to the one
/// that the user chooses. Main thread only.
class AirDrop : public QObject
{
    Q_OBJECT
    /// The names of the devices that the user is to choose from; empty while there is nothing to choose.
    Q_PROPERTY(QStringList choices READ choices NOTIFY choicesChanged BINDABLE bindableChoices)
    /// The number of the latest request; a view knows its own by it.
    Q_PROPERTY(int request READ request NOTIFY requestChanged BINDABLE bindableRequest)

public:
    explicit AirDrop(FileSharing &sharing, QObject *parent = nullptr);

    QStringList choices() const { return m_choices; }
    QBindable<QStringList> bindableChoices() const { return QBindable<QStringList>(&m_choices); }
    int request() const { return m_request; }
    QBindable<int> bindableRequest() const { return QBindable<int>(&m_request); }

    /// Sends the local ones of `files`; the request takes the place of one that still waits. Returns its
    /// number. Nothing happens, and nothing waits any more, without a file or without a device.
    Q_INVOKABLE int send(const QList<QUrl> &files);

    /// Sends the files that wait to the device with this place among the choices; another place cancels.
    Q_INVOKABLE void choose(int index);

    /// Forgets the files that wait.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void choicesChanged();
    void requestChanged();

private:
    QCoro::Task<> askForDevices();
    void found(const QList<SharingDevice> &devices);

    FileSharing &m_sharing;
    QList<QUrl> m_files;            ///< What waits for the devices or for the user's choice.
    QList<SharingDevice> m_devices; ///< Those of the choices.
    Scope m_search;
    Q_OBJECT_BINDABLE_PROPERTY(AirDrop, QStringList, m_choices, &AirDrop::choicesChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AirDrop, int, m_request, 0, &AirDrop::requestChanged)
};

} // namespace Kestrune
