#include "NowPlayingModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/RunningApplications.h"

#include <QPointer>

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr int kShownInterval = 2; // Seconds.
constexpr int kHiddenInterval = 5;
constexpr int kFollowedInterval = 10; // While it is on screen: not every player tells everything.
constexpr auto kCommandTime = 250ms;  // What a player takes to follow a command.
constexpr auto kGathering = 100ms;    // What players tell of one change comes in pieces.
constexpr int kMostLateLooks = 4;
constexpr std::chrono::milliseconds kFirstLateLook = 1s; // Each further one takes twice as long.

QString identity(MediaPlayer player, const PlayingTrack &track)
{
    return playerName(player) + QLatin1Char('|') + track.title + QLatin1Char('|') + track.artist;
}

} // namespace

NowPlayingModel::NowPlayingModel(NotchSettings &settings, Clock &clock, RunningApplications &applications,
                                 ScriptExecutor &executor, HttpClient &http,
                                 std::shared_ptr<PictureReader> pictures, QObject *parent)
    : ToolModel(NotchTool::nowPlaying, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_applications(applications)
    , m_bridge(executor, http, std::move(pictures))
{
    connect(&settings, &NotchSettings::toolsChanged, this, &NowPlayingModel::followSetting);
    connect(&settings, &NotchSettings::ignoredPlayersChanged, this, &NowPlayingModel::noticed);
    m_follows = applications.follow([self = QPointer(this)] {
        if (self)
            self->noticed();
    });
    if (m_follows)
        noticed();
}

void NowPlayingModel::noticed()
{
    if (m_soon || !isEnabled())
        return;
    m_soon = m_clock.after(kGathering, [this] {
        m_soon.reset();
        m_lateLooks = 0;
        refresh();
    });
}

QVariant NowPlayingModel::trackForViews() const
{
    const auto known = track();
    return known ? QVariant::fromValue(*known) : QVariant();
}

QVariant NowPlayingModel::artworkForViews() const
{
    return artwork().isNull() ? QVariant() : QVariant::fromValue(artwork());
}

QList<NowPlayingModel::Player> NowPlayingModel::runningPlayers() const
{
    QList<Player> running;
    for (const Player player : kMediaPlayers) {
        if (m_applications.isRunning(bundleIdentifier(player)))
            running.append(player);
    }
    return running;
}

bool NowPlayingModel::isEnabled() const { return m_settings.isEnabled(tool()); }

bool NowPlayingModel::isShown(NotchTool visible) const
{
    return visible == tool() ||
           (visible == NotchTool::home && m_settings.column(HomeWidget::nowPlaying) != HomeColumn::hidden);
}

void NowPlayingModel::followSetting()
{
    if (isEnabled()) {
        if (m_follows)
            noticed();
        return;
    }
    m_soon.reset();
    m_looks.end();
    clear();
}

ToolModel::Activity NowPlayingModel::activity() const
{
    return m_track.value() ? Activity::live : Activity::none;
}

/// Players that tell nothing have to be asked.
ToolModel::Pace NowPlayingModel::pace() const
{
    return isEnabled() && !m_follows ? Pace::seconds : Pace::rest;
}

void NowPlayingModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible && isShown(*visible) && isEnabled())
        refresh();
}

void NowPlayingModel::tick(const ClockTick &tick)
{
    if (!isEnabled())
        return;
    const bool isOpen = tick.anyExpanded && tick.visibleTool && isShown(*tick.visibleTool);
    const bool shows = tick.anyExpanded || m_settings.liveActivities();
    if (m_follows && isOpen)
        advance();
    const int interval = m_follows ? kFollowedInterval : shows ? kShownInterval : kHiddenInterval;
    if ((isOpen || !m_follows) && tick.seconds % interval == 0)
        refresh();
}

/// Moves the position on between two looks.
void NowPlayingModel::advance()
{
    auto moved = track();
    if (!moved || !moved->playing)
        return;
    const std::chrono::duration<double> since = m_clock.uptime() - m_heard;
    const double position = m_heardPosition + since.count() * moved->rate;
    moved->position =
        moved->duration > 0 ? std::min(position, std::max(moved->duration, m_heardPosition)) : position;
    m_track = moved;
}

void NowPlayingModel::clear()
{
    m_player = std::nullopt;
    m_track = std::nullopt;
    m_artwork = QImage();
    m_song.clear();
    m_artworkKey.clear();
    m_late.reset();
}

QCoro::Task<> NowPlayingModel::look()
{
    const QList<Player> players = runningPlayers();
    Found best;
    for (const Player player : players) {
        const ScriptBridge::Result result = co_await m_bridge.state(player);
        consider(player, result, best);
    }
    if (best)
        co_await show(best->first, best->second);
    else
        clear();
    if (!best && m_follows && !players.isEmpty())
        lookLater();
}

void NowPlayingModel::consider(Player player, const ScriptBridge::Result &result, Found &best)
{
    if (std::holds_alternative<ScriptBridge::Denied>(result))
        m_permissionDenied = true;
    const auto *track = std::get_if<Track>(&result);
    if (!track)
        return;
    m_permissionDenied = false;
    noteUse(player, *track);
    if (!best || isBetter(player, *track, best))
        best = {player, *track};
}

/// A song that was paused before anyone looked was not used.
void NowPlayingModel::noteUse(Player player, const Track &track)
{
    const auto [use, isNew] = m_uses.try_emplace(player, Use{track.title, false, 0});
    if (use->second.playing == track.playing && use->second.title == track.title)
        return;
    use->second = {track.title, track.playing, ++m_useCount};
}

bool NowPlayingModel::isBetter(Player player, const Track &track, const Found &best) const
{
    if (track.playing || best->second.playing)
        return !best->second.playing;
    return m_uses.at(player).number > m_uses.at(best->first).number;
}

void NowPlayingModel::setTrack(const Track &track)
{
    m_heard = m_clock.uptime();
    m_heardPosition = track.position;
    m_track = track;
}

QCoro::Task<> NowPlayingModel::show(Player player, Track track)
{
    m_player = player;
    setTrack(track);
    const QString song = identity(player, track);
    if (std::exchange(m_song, song) != song)
        m_lateLooks = 0;
    const QString key = song + QLatin1Char('|') + track.cover;
    if (std::exchange(m_artworkKey, key) != key) {
        const QImage image = co_await m_bridge.artwork(player);
        // Another song may have begun before this one's cover came.
        if (m_artworkKey != key)
            co_return;
        m_artwork = image;
    }
    if (!artwork().isNull())
        m_lateLooks = 0;
    else if (!track.cover.isEmpty())
        lookLater();
}

/// Players name a cover before they have written it. And one that has just been started may be too busy to
/// answer, and has nothing more to tell when it is not.
void NowPlayingModel::lookLater()
{
    if (m_late || m_lateLooks >= kMostLateLooks)
        return;
    m_late = m_clock.after(kFirstLateLook * (1 << m_lateLooks++), [this] {
        m_late.reset();
        if (artwork().isNull())
            m_artworkKey.clear(); // Its cover is asked for again.
        refresh();
    });
}

void NowPlayingModel::send(ScriptBridge::Command command)
{
    if (const auto shown = player())
        m_commands.start(&NowPlayingModel::carryOut, this, m_bridge.run(command, *shown));
}

void NowPlayingModel::seek(double position)
{
    auto moved = track();
    if (!moved || !moved->canSeek || !player())
        return;
    moved->position = std::clamp(position, 0.0, moved->duration);
    setTrack(*moved); // Nothing jumps back until the player has followed.
    m_commands.start(&NowPlayingModel::carryOut, this, m_bridge.seek(*player(), moved->position));
}

QCoro::Task<> NowPlayingModel::carryOut(QFuture<ScriptOutcome> done)
{
    co_await until(done);
    m_sleeps.push_back(m_clock.after(kCommandTime, [this] {
        m_sleeps.pop_front(); // All sleep for as long: the first one wakes first.
        refresh();
    }));
}

} // namespace Kestrune
