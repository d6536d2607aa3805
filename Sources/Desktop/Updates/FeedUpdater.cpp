#include "FeedUpdater.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/Platform/UserDefaults.h"
#include "NotchKit/Platform/Workspace.h"

#include <QtConcurrentRun>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr qint64 kLongestFeed = qint64{256} * 1024;
constexpr std::chrono::milliseconds kPackagePatience = 30min;
constexpr std::chrono::milliseconds kFirstLook = 1min; // after the start, when the machine has settled
constexpr std::chrono::milliseconds kPause = 24h;

QString automaticKey() { return QStringLiteral("kestrune.automaticallyDownloadsUpdates"); }
QString newestKey() { return QStringLiteral("kestrune.newestRelease"); }

} // namespace

FeedUpdater::FeedUpdater(Source source, const Ports &ports, const QString &cache, QObject *parent)
    : Updater(parent)
    , m_source(std::move(source))
    , m_ports(ports)
    , m_store(cache, m_source.key)
    , m_automatic(ports.defaults.value<bool>(automaticKey()).value_or(false))
{
    schedule();
}

bool FeedUpdater::isBusy() const
{
    return m_status.phase == Phase::checking || m_status.phase == Phase::fetching;
}

void FeedUpdater::setAutomaticallyDownloadsUpdates(bool automatically)
{
    if (m_automatic == automatically)
        return;
    m_automatic = automatically;
    m_ports.defaults.setObject(automaticKey(), automatically);
    schedule();
    Q_EMIT changed();
}

void FeedUpdater::schedule()
{
    m_first.reset();
    m_daily.reset();
    if (!m_automatic)
        return;
    m_first = m_ports.clock.after(kFirstLook, [this] { lookUnasked(); });
    m_daily = m_ports.clock.every(kPause, [this] { lookUnasked(); });
}

void FeedUpdater::lookUnasked()
{
    if (isBusy())
        return;
    m_asked = false;
    look();
}

void FeedUpdater::checkForUpdates()
{
    m_asked = true;
    if (!isBusy())
        look();
    Q_EMIT attentionWanted();
}

void FeedUpdater::look()
{
    enter(Phase::checking);
    m_request = std::make_unique<Answer<HttpReply>>(
        m_ports.http.get({m_source.feed, {}, m_source.patience, kLongestFeed}),
        [this](const HttpReply &reply) { takeFeed(reply); });
}

void FeedUpdater::takeFeed(const HttpReply &reply)
{
    m_request.reset();
    const auto feed = reply.isGood() ? readReleaseFeed(reply.body, m_source.key) : FeedFault::unreadable;
    if (const auto *release = std::get_if<Release>(&feed))
        takeRelease(*release);
    else if (std::get<FeedFault>(feed) == FeedFault::notSigned)
        fail(QT_TRANSLATE_NOOP(
            "notch", "The list of releases is not signed by Kestrune’s makers, so it was ignored."));
    else
        fail(QT_TRANSLATE_NOOP("notch", "The list of releases could not be read. Are you online?"));
}

void FeedUpdater::takeRelease(const Release &release)
{
    const auto newest =
        SemanticVersion::parse(m_ports.defaults.value<QString>(newestKey()).value_or(QString()));
    if (newest && release.version < *newest) {
        // Somebody plays back a feed of long ago, which was signed then.
        fail(QT_TRANSLATE_NOOP("notch",
                               "The list of releases is older than one seen before, so it was ignored."));
        return;
    }
    if (newest != release.version)
        m_ports.defaults.setObject(newestKey(), release.text);
    if (release.version <= m_source.version) {
        enter(Phase::current);
        return;
    }
    m_release = release;
    m_status.version = release.text;
    m_status.notes = release.notesIn(notchLanguage());
    m_search = std::make_unique<Answer<bool>>(
        QtConcurrent::run([store = m_store, release] { return store.holds(release); }),
        [this](bool isHere) { offer(isHere); });
}

void FeedUpdater::offer(bool isHere)
{
    if (isHere) {
        enterReady();
        return;
    }
    enter(Phase::available);
    if (m_automatic)
        fetch();
}

void FeedUpdater::fetchUpdate()
{
    if (m_status.phase != Phase::available)
        return;
    m_asked = true;
    fetch();
}

void FeedUpdater::fetch()
{
    enter(Phase::fetching);
    m_request = std::make_unique<Answer<HttpReply>>(
        m_ports.http.get({m_release.package, {}, kPackagePatience, m_release.size}),
        [this](const HttpReply &reply) { takePackage(reply); });
}

void FeedUpdater::takePackage(const HttpReply &reply)
{
    m_request.reset(); // It holds the package too.
    if (!reply.isGood() || reply.body.size() != m_release.size) {
        fail(QT_TRANSLATE_NOOP("notch", "The update could not be downloaded. Are you online?"));
        return;
    }
    m_saving = std::make_unique<Answer<PackageStore::Outcome>>(
        QtConcurrent::run([store = m_store, release = m_release, package = reply.body] {
            return store.keep(release, package);
        }),
        [this](PackageStore::Outcome outcome) { takeOutcome(outcome); });
}

void FeedUpdater::takeOutcome(PackageStore::Outcome outcome)
{
    switch (outcome) {
    case PackageStore::Outcome::kept:
        enterReady();
        return;
    case PackageStore::Outcome::notSigned:
        fail(QT_TRANSLATE_NOOP("notch",
                               "The update is not what Kestrune’s makers signed, so it was not kept."));
        return;
    case PackageStore::Outcome::notSaved:
        fail(QT_TRANSLATE_NOOP("notch", "The update could not be saved. Is the disk full?"));
        return;
    }
}

void FeedUpdater::installUpdate()
{
    if (m_status.phase != Phase::ready)
        return;
    // It may have lain there for days.
    m_search = std::make_unique<Answer<bool>>(
        QtConcurrent::run([store = m_store, release = m_release] { return store.holds(release); }),
        [this](bool isHere) {
            if (isHere)
                m_ports.workspace.open(QUrl::fromLocalFile(m_store.path(m_release)));
            else
                fail(QT_TRANSLATE_NOOP("notch", "The downloaded update was changed or removed."));
        });
}

void FeedUpdater::enter(Phase phase)
{
    m_status.phase = phase;
    if (phase != Phase::failed)
        m_status.message.clear();
    Q_EMIT changed();
}

/// Calls for attention after a download that took a while, and unasked once for each release and start.
void FeedUpdater::enterReady()
{
    const bool isNews = m_status.phase == Phase::fetching || m_told != m_release.text;
    enter(Phase::ready);
    if (!isNews)
        return;
    m_told = m_release.text;
    Q_EMIT attentionWanted();
}

void FeedUpdater::fail(const char *message)
{
    const bool isNews = m_asked && m_status.phase == Phase::fetching;
    m_status.message = notchStrings(message);
    enter(Phase::failed);
    if (isNews)
        Q_EMIT attentionWanted();
}

} // namespace Kestrune
