#include "FeedUpdater.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/Platform/NetworkReturn.h"
#include "NotchKit/Platform/UserDefaults.h"
#include "NotchKit/Platform/Workspace.h"

#include <QLoggingCategory>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(updatesLog, "kestrune.updates", QtWarningMsg)

constexpr qint64 kLongestFeed = qint64{256} * 1024;
constexpr std::chrono::milliseconds kPackagePatience = 30min;
constexpr std::chrono::milliseconds kFirstLook = 1min; // after the start, when the machine has settled
constexpr std::chrono::milliseconds kPause = 24h;

/// Plain http is for a feed that is on this computer itself.
bool mayComeFrom(const QUrl &package, const QUrl &feed)
{
    return package.scheme() == QLatin1String("https") || package.scheme() == feed.scheme();
}

QString automaticKey() { return QStringLiteral("kestrune.automaticallyDownloadsUpdates"); }
QString newestKey() { return QStringLiteral("kestrune.newestRelease"); }
QString keyNumberKey() { return QStringLiteral("kestrune.releaseKeyNumber"); }

} // namespace

FeedUpdater::FeedUpdater(Source source, std::unique_ptr<Releases> releases, const Platform &platform,
                         QObject *parent)
    : Updater(parent)
    , m_source(std::move(source))
    , m_releases(std::move(releases))
    , m_platform(platform)
    , m_automatic(platform.defaults.value<bool>(automaticKey()).value_or(false))
{
    connect(&platform.network, &NetworkReturn::returned, this, &FeedUpdater::lookAgain);
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
    m_platform.defaults.setObject(automaticKey(), automatically);
    schedule();
    Q_EMIT changed();
}

void FeedUpdater::schedule()
{
    m_first.reset();
    m_daily.reset();
    if (!m_automatic)
        return;
    m_first = m_platform.clock.after(kFirstLook, [this] { lookUnasked(); });
    m_daily = m_platform.clock.every(kPause, [this] { lookUnasked(); });
}

void FeedUpdater::lookUnasked()
{
    if (isBusy())
        return;
    m_asked = false;
    m_steps.restart(&FeedUpdater::look, this);
}

/// The day's look does not wait for the next day.
void FeedUpdater::lookAgain()
{
    if (m_automatic && m_unreached)
        lookUnasked();
}

void FeedUpdater::checkForUpdates()
{
    m_asked = true;
    if (!isBusy())
        m_steps.restart(&FeedUpdater::look, this);
    Q_EMIT attentionWanted();
}

QCoro::Task<> FeedUpdater::look()
{
    enter(Phase::checking);
    const HttpRequest request{m_source.feed, {}, m_source.patience, kLongestFeed};
    const QFuture<HttpReply> asked = m_platform.http.get(request);
    const HttpReply reply = co_await until(asked);
    const std::optional<Release> release = takeFeed(reply);
    if (!release || !takeRelease(*release))
        co_return;
    const QFuture<bool> search = m_releases->holds(*release);
    const bool isHere = co_await until(search);
    if (isHere) {
        enterReady();
        co_return;
    }
    enter(Phase::available);
    if (m_automatic)
        co_await fetch();
}

/// Nothing for a bad feed, which the user is told.
std::optional<Release> FeedUpdater::takeFeed(const HttpReply &reply)
{
    qCDebug(updatesLog, "the feed: status %d, %lld bytes", reply.status,
            static_cast<long long>(reply.body.size()));
    m_unreached = reply.status == 0;
    const auto feed = reply.isGood() ? m_releases->read(reply.body) : FeedFault::unreadable;
    const auto *release = std::get_if<Release>(&feed);
    if (release && mayComeFrom(release->package, m_source.feed))
        return *release;
    if (!release && std::get<FeedFault>(feed) == FeedFault::notSigned)
        fail(QT_TRANSLATE_NOOP(
            "notch", "The list of releases is not signed by Kestrune’s makers, so it was ignored."));
    else
        fail(QT_TRANSLATE_NOOP("notch", "The list of releases could not be read. Are you online?"));
    return std::nullopt;
}

/// Whether what was said of it still holds, by this computer's clock, which may be off by a day. The user is
/// told where it does not.
bool FeedUpdater::isOfNow(const Release &release)
{
    const QDateTime now = m_platform.clock.now();
    if (release.expires <= now)
        fail(QT_TRANSLATE_NOOP(
            "notch", "The list of releases has expired, so it was ignored. Is the clock set right?"));
    else if (release.issued > now.addDays(1))
        fail(QT_TRANSLATE_NOOP(
            "notch",
            "The list of releases is dated in the future, so it was ignored. Is the clock set right?"));
    else
        return true;
    return false;
}

/// Whether somebody plays back a feed of long ago, which was signed then, or signs with a key that was
/// replaced.
bool FeedUpdater::isPlayedBack(const Release &release) const
{
    const qint64 keyNumber = m_platform.defaults.value<qint64>(keyNumberKey()).value_or(0);
    // Whoever had the key before may have told of any version.
    if (release.keyNumber != keyNumber)
        return release.keyNumber < keyNumber;
    const auto newest =
        SemanticVersion::parse(m_platform.defaults.value<QString>(newestKey()).value_or(QString()));
    return newest && release.version < *newest;
}

void FeedUpdater::remember(const Release &release)
{
    UserDefaults &defaults = m_platform.defaults;
    if (defaults.value<QString>(newestKey()) != release.text)
        defaults.setObject(newestKey(), release.text);
    // Last: with the new number and the old version, what the makers tell would be refused.
    if (defaults.value<qint64>(keyNumberKey()).value_or(0) != release.keyNumber)
        defaults.setObject(keyNumberKey(), qint64{release.keyNumber});
}

/// Whether it is one to offer.
bool FeedUpdater::takeRelease(const Release &release)
{
    if (!isOfNow(release))
        return false;
    if (isPlayedBack(release)) {
        fail(QT_TRANSLATE_NOOP("notch",
                               "The list of releases is older than one seen before, so it was ignored."));
        return false;
    }
    remember(release);
    if (release.version <= m_source.version) {
        enter(Phase::current);
        return false;
    }
    qCInfo(updatesLog, "a newer release is there");
    m_release = release;
    m_status.version = release.text;
    m_status.notes = release.notesIn(notchLanguage());
    return true;
}

void FeedUpdater::fetchUpdate()
{
    if (m_status.phase != Phase::available)
        return;
    m_asked = true;
    m_steps.restart(&FeedUpdater::fetch, this);
}

QCoro::Task<> FeedUpdater::fetch()
{
    enter(Phase::fetching);
    const HttpRequest request{
        m_release.package, {}, kPackagePatience, m_release.size, m_releases->receive(m_release)};
    const QFuture<HttpReply> asked = m_platform.http.get(request);
    const HttpReply reply = co_await until(asked);
    m_unreached = reply.status == 0;
    const QFuture<Releases::Kept> saving = m_releases->keep(reply.isGood());
    const Releases::Kept outcome = co_await until(saving);
    takeOutcome(outcome);
}

void FeedUpdater::takeOutcome(Releases::Kept outcome)
{
    switch (outcome) {
    case Releases::Kept::kept:
        enterReady();
        return;
    case Releases::Kept::notFetched:
        fail(QT_TRANSLATE_NOOP("notch", "The update could not be downloaded. Are you online?"));
        return;
    case Releases::Kept::notSigned:
        fail(QT_TRANSLATE_NOOP("notch",
                               "The update is not what Kestrune’s makers signed, so it was not kept."));
        return;
    case Releases::Kept::notSaved:
        fail(QT_TRANSLATE_NOOP("notch", "The update could not be saved. Is the disk full?"));
        return;
    }
}

void FeedUpdater::installUpdate()
{
    if (m_status.phase == Phase::ready)
        m_steps.restart(&FeedUpdater::install, this);
}

QCoro::Task<> FeedUpdater::install()
{
    // It may have lain there for days.
    if (!isOfNow(m_release))
        co_return;
    const QFuture<bool> search = m_releases->holds(m_release);
    const bool isHere = co_await until(search);
    if (isHere)
        m_platform.workspace.open(m_releases->file(m_release));
    else
        fail(QT_TRANSLATE_NOOP("notch", "The downloaded update was changed or removed."));
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
    qCInfo(updatesLog, "%s", message);
    m_status.message = notchStrings(message);
    enter(Phase::failed);
    if (isNews)
        Q_EMIT attentionWanted();
}

} // namespace Kestrune
