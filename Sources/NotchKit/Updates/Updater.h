#pragma once

#include <QObject>

namespace Kestrune {

/// How far the look for an update has come.
class UpdateStatus
{
    Q_GADGET
    Q_PROPERTY(Phase phase MEMBER phase)
    Q_PROPERTY(QString version MEMBER version)
    Q_PROPERTY(QString notes MEMBER notes)
    Q_PROPERTY(QString message MEMBER message)

public:
    enum class Phase {
        idle,      ///< Nothing was looked for yet.
        checking,  ///< The feed is being asked.
        current,   ///< This copy is the newest.
        available, ///< There is a newer release.
        fetching,  ///< Its package is on its way.
        ready,     ///< Its package is here, and is what was signed.
        failed,    ///< `message` says why.
    };
    Q_ENUM(Phase)

    Phase phase = Phase::idle;
    QString version; ///< Of the newer release.
    QString notes;   ///< What is new in it, in the user's language.
    QString message;

    bool operator==(const UpdateStatus &) const = default;
};

/// Keeps this copy of the program up to date. Main thread only; nothing here waits.
class Updater : public QObject
{
    Q_OBJECT
    /// This copy may update itself.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY changed)
    /// Updates are looked for each day and fetched without a question; they are installed only when the user
    /// says so. Writing has no effect where `managed`.
    Q_PROPERTY(bool automaticallyDownloadsUpdates READ automaticallyDownloadsUpdates WRITE
                   setAutomaticallyDownloadsUpdates NOTIFY changed)
    /// Somebody else replaces this copy: a package manager, or the user who built it.
    Q_PROPERTY(bool managed READ isManaged CONSTANT)
    Q_PROPERTY(Kestrune::UpdateStatus status READ status NOTIFY changed)

public:
    using QObject::QObject;

    virtual bool canCheckForUpdates() const = 0;

    /// Looks for an update and shows the user what comes of it; one that is under way already is shown.
    /// Nothing happens where that is not possible.
    virtual void checkForUpdates() = 0;

    virtual bool automaticallyDownloadsUpdates() const = 0;
    virtual void setAutomaticallyDownloadsUpdates(bool automatically) = 0;

    virtual bool isManaged() const = 0;
    virtual UpdateStatus status() const { return {}; }

    /// Fetches the release that is `available`.
    Q_INVOKABLE virtual void fetchUpdate() {}

    /// Hands the package that is `ready` to the desktop's installer, which asks the user.
    Q_INVOKABLE virtual void installUpdate() {}

Q_SIGNALS:
    void changed();

    /// There is something that the user asked for, or should decide: `status` is worth a window.
    void attentionWanted();
};

} // namespace Kestrune
