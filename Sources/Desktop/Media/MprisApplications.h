#pragma once

#include "NotchKit/Platform/RunningApplications.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QSet>

namespace Kestrune {

/// The media players that run, known by their names on the session bus, which tells when one comes or goes.
class MprisApplications : public RunningApplications
{
public:
    explicit MprisApplications(const QDBusConnection &bus);

    /// For the bundle identifiers of MediaPlayer.
    bool isRunning(const QString &bundleIdentifier) const override;

private:
    QDBusServiceWatcher m_watcher;
    QSet<QString> m_names;
};

} // namespace Kestrune
