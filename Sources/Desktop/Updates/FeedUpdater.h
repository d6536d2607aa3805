#pragma once

#include "NotchKit/Answer.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/Updater.h"
#include "PackageStore.h"

#include <memory>

namespace Kestrune {

class UserDefaults;
class Workspace;

/// The updater of a copy that came from the makers' own site: it reads their signed release feed. Nothing is
/// asked unless the user asks, or has switched on that it may look each day.
class FeedUpdater : public Updater
{
    Q_OBJECT

public:
    /// Where releases are told, who signs them, and which one this copy is.
    struct Source
    {
        QUrl feed;
        ReleaseKey key;
        SemanticVersion version;
        std::chrono::milliseconds patience = std::chrono::seconds(30); ///< With the server of the feed.
    };
    /// All outlive the object.
    struct Ports
    {
        HttpClient &http;
        Clock &clock;
        UserDefaults &defaults;
        Workspace &workspace;
    };

    /// Packages are kept in the folder `cache`, which is the updater's alone.
    FeedUpdater(Source source, const Ports &ports, const QString &cache, QObject *parent = nullptr);

    bool canCheckForUpdates() const override { return true; }
    void checkForUpdates() override;
    bool automaticallyDownloadsUpdates() const override { return m_automatic; }
    void setAutomaticallyDownloadsUpdates(bool automatically) override;
    bool isManaged() const override { return false; }
    UpdateStatus status() const override { return m_status; }
    void fetchUpdate() override;
    void installUpdate() override;

private:
    using Phase = UpdateStatus::Phase;

    bool isBusy() const;
    void schedule();
    void lookUnasked();
    void look();
    void takeFeed(const HttpReply &reply);
    void takeRelease(const Release &release);
    void offer(bool isHere);
    void fetch();
    void takePackage(const HttpReply &reply);
    void takeOutcome(PackageStore::Outcome outcome);
    void enter(Phase phase);
    void enterReady();
    void fail(const char *message);

    Source m_source;
    Ports m_ports;
    PackageStore m_store;
    bool m_automatic;
    bool m_asked = false; ///< What is under way was started by the user.
    QString m_told;       ///< The release of which the user was told unasked.
    UpdateStatus m_status;
    Release m_release; ///< The one that `m_status` is about.
    std::unique_ptr<Answer<HttpReply>> m_request;
    std::unique_ptr<Answer<bool>> m_search;
    std::unique_ptr<Answer<PackageStore::Outcome>> m_saving;
    std::unique_ptr<RunningTimer> m_first;
    std::unique_ptr<RunningTimer> m_daily;
};

} // namespace Kestrune
