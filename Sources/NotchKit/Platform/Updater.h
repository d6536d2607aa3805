#pragma once

#include <QObject>

namespace Kestrune {

/// Keeps this copy of the program up to date. Main thread only; nothing here waits.
class Updater : public QObject
{
    Q_OBJECT
    /// A check can be started now: none is under way, and this copy may update itself.
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY changed)
    /// Updates that are found are installed without a question. Writing has no effect where `managed`.
    Q_PROPERTY(bool automaticallyDownloadsUpdates READ automaticallyDownloadsUpdates WRITE
                   setAutomaticallyDownloadsUpdates NOTIFY changed)
    /// Somebody else replaces this copy: a package manager, or the user who built it.
    Q_PROPERTY(bool managed READ isManaged CONSTANT)

public:
    using QObject::QObject;

    virtual bool canCheckForUpdates() const = 0;

    /// Looks for an update and tells the user what came of it; nothing happens while that is not possible.
    virtual void checkForUpdates() = 0;

    virtual bool automaticallyDownloadsUpdates() const = 0;
    virtual void setAutomaticallyDownloadsUpdates(bool automatically) = 0;

    virtual bool isManaged() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace Kestrune
