#include "NowPlayingModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/RunningApplications.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr int kShownInterval = 2; // Seconds.
constexpr int kHiddenInterval = 5;
constexpr auto kCommandTime = 250ms; // What a player takes to follow a command.

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
    if (isEnabled())
        return;
    m_looks.end();
    clear();
}

ToolModel::Activity NowPlayingModel::activity() const
{
    return m_track.value() ? Activity::live : Activity::none;
}

void NowPlayingModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible && isShown(*visible) && isEnabled())
        refresh();
}

void NowPlayingModel::tick(const ClockTick &tick)
{
    const bool shows = tick.anyExpanded || m_settings.liveActivities();
    if (isEnabled() && tick.seconds % (shows ? kShownInterval : kHiddenInterval) == 0)
        refresh();
}

void NowPlayingModel::clear()
{
    m_player = std::nullopt;
    m_track = std::nullopt;
    m_artwork = QImage();
    m_artworkKey.clear();
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
}

void NowPlayingModel::consider(Player player, const ScriptBridge::Result &result, Found &best)
{
    if (std::holds_alternative<ScriptBridge::Denied>(result))
        m_permissionDenied = true;
    const auto *track = std::get_if<Track>(&result);
    if (!track)
        return;
    m_permissionDenied = false;
    if (!best || (track->playing && !best->second.playing))
        best = {player, *track};
}

QCoro::Task<> NowPlayingModel::show(Player player, Track track)
{
    m_player = player;
    m_track = track;
    const QString key = playerName(player) + QLatin1Char('|') + track.title + QLatin1Char('|') + track.artist;
    if (std::exchange(m_artworkKey, key) == key)
        co_return;
    const QImage image = co_await m_bridge.artwork(player);
    // Another song may have begun before this one's cover came.
    if (m_artworkKey == key)
        m_artwork = image;
}

void NowPlayingModel::send(ScriptBridge::Command command)
{
    if (const auto shown = player())
        m_commands.start(&NowPlayingModel::carryOut, this, command, *shown);
}

QCoro::Task<> NowPlayingModel::carryOut(ScriptBridge::Command command, Player player)
{
    const QFuture<ScriptOutcome> done = m_bridge.run(command, player);
    co_await until(done);
    m_sleeps.push_back(m_clock.after(kCommandTime, [this] {
        m_sleeps.pop_front(); // All sleep for as long: the first one wakes first.
        refresh();
    }));
}

} // namespace Kestrune
