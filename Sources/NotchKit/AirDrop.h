#pragma once

#include "Async/Scope.h"
#include "NotchKit/Platform/FileSharing.h"

#include <QObject>
#include <QProperty>
#include <QStringList>

namespace Kestrune {

/// Sends files to one of the user's devices. One file goes to the only device in reach at once; before
/// anything else is sent, the user chooses. Says what came of it. Main thread only.
class AirDrop : public QObject
{
    Q_OBJECT
    /// What the user is to choose from, an entry for each device; empty while there is nothing to choose.
    Q_PROPERTY(QStringList choices READ choices NOTIFY choicesChanged BINDABLE bindableChoices)
    /// The number of the latest request; a view knows its own by it.
    Q_PROPERTY(int request READ request NOTIFY requestChanged BINDABLE bindableRequest)
    /// What came of the latest request, in the user's language; empty while nothing has.
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    /// What sending lacks on this computer, in the user's language; empty where, at the last look, it lacked
    /// nothing.
    Q_PROPERTY(QString lack READ lack NOTIFY lackChanged)

public:
    explicit AirDrop(FileSharing &sharing, QObject *parent = nullptr);

    QStringList choices() const { return m_choices; }
    QBindable<QStringList> bindableChoices() const { return QBindable<QStringList>(&m_choices); }
    int request() const { return m_request; }
    QBindable<int> bindableRequest() const { return QBindable<int>(&m_request); }

    QString notice() const { return m_notice; }
    QString lack() const { return m_lack; }

    /// Looks whether anything is lacking.
    void look();

    /// Sends the local ones of `files`; the request takes the place of one that still waits. Returns its
    /// number. Nothing happens, and nothing waits any more, without a file.
    Q_INVOKABLE int send(const QList<QUrl> &files);

    /// Sends the files that wait to the device with this place among the choices; another place cancels.
    Q_INVOKABLE void choose(int index);

    /// Forgets the files that wait.
    Q_INVOKABLE void cancel();

    /// The notice has been read.
    Q_INVOKABLE void dismiss() { m_notice = QString(); }

Q_SIGNALS:
    void choicesChanged();
    void requestChanged();
    void noticeChanged();
    void lackChanged();

private:
    QCoro::Task<> askForDevices();
    QCoro::Task<> askWhatLacks();
    QCoro::Task<> hand(SharingDevice device, QList<QUrl> files);
    void found(const SharingDevices &found);
    QString choiceOf(const SharingDevice &device) const;

    FileSharing &m_sharing;
    QList<QUrl> m_files;            ///< What waits for the devices or for the user's choice.
    QList<SharingDevice> m_devices; ///< Those of the choices.
    Q_OBJECT_BINDABLE_PROPERTY(AirDrop, QStringList, m_choices, &AirDrop::choicesChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AirDrop, int, m_request, 0, &AirDrop::requestChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AirDrop, QString, m_notice, &AirDrop::noticeChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AirDrop, QString, m_lack, &AirDrop::lackChanged)
    Scope m_search;
    Scope m_looks;
    Scope m_hands; ///< One at a time: a later notice takes the place of an earlier one.
};

} // namespace Kestrune
