#pragma once

#include "NotchKit/Platform/RunningApplications.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QSet>

namespace Kestrune {

/// The media players that run, known by their names on the session bus, which tells when one comes or goes;
/// the players themselves tell when they begin another song, pause or seek.
class MprisApplications : public QObject, public RunningApplications
{
    Q_OBJECT

public:
    explicit MprisApplications(const QDBusConnection &bus);

    /// For the bundle identifiers of MediaPlayer.
    bool isRunning(const QString &bundleIdentifier) const override;
    bool follow(const std::function<void()> &changed) override;

private Q_SLOTS:
    void tell();

private:
    QDBusServiceWatcher m_watcher;
    QSet<QString> m_names;
    std::function<void()> m_changed;
    bool m_isToldOf = false;
};

} // namespace Kestrune
