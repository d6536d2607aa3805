#pragma once

#include "Async/Scope.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/Platform.h"
#include "NotchKit/Platform/Releases.h"
#include "Updater.h"

#include <memory>

namespace Kestrune {

/// The updater of a copy that came from the makers' own site: it reads their signed release feed. Nothing is
/// asked unless the user asks, or has switched on that it may look each day.
class FeedUpdater : public Updater
{
    Q_OBJECT

public:
    /// Where releases are told, and which one this copy is.
    struct Source
    {
        QUrl feed;
        SemanticVersion version;
        std::chrono::milliseconds patience = std::chrono::seconds(30); ///< With the server of the feed.
    };

    /// `releases` are those of the makers of this copy.
    FeedUpdater(Source source, std::unique_ptr<Releases> releases, const Platform &platform,
                QObject *parent = nullptr);

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
    void lookAgain();
    QCoro::Task<> look();
    std::optional<Release> takeFeed(const HttpReply &reply);
    bool takeRelease(const Release &release);
    bool isOfNow(const Release &release);
    bool isPlayedBack(const Release &release) const;
    void remember(const Release &release);
    QCoro::Task<> fetch();
    QCoro::Task<> install();
    void takeOutcome(Releases::Kept outcome);
    void enter(Phase phase);
    void enterReady();
    void fail(const char *message);

    Source m_source;
    std::unique_ptr<Releases> m_releases;
    Platform m_platform;
    bool m_automatic;
    bool m_asked = false;     ///< What is under way was started by the user.
    bool m_unreached = false; ///< For want of a network, maybe.
    QString m_told;           ///< The release of which the user was told unasked.
    UpdateStatus m_status;
    Release m_release; ///< The one that `m_status` is about.
    std::unique_ptr<RunningTimer> m_first;
    std::unique_ptr<RunningTimer> m_daily;
    Scope m_steps; ///< From the look at the feed to the package.
};

} // namespace Kestrune
