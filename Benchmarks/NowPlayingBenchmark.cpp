// What it costs to follow the media players: the bars in the wings while a song plays, and the longest time
// between two polls of the pointer while a player hangs.

#include "App/PanelFactory.h"
#include "App/WindowSystems.h"
#include "Desktop/Media/MprisApplications.h"
#include "Desktop/Media/MprisExecutor.h"
#include "Desktop/Time/SystemClock.h"
#include "LoopWatch.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "NotchKit/Shell/NotchWindow.h"
#include "NotchKit/Tools/NowPlaying/NowPlayingModel.h"
#include "Surroundings.h"
#include "Table.h"
#include "Timing.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QQmlEngine>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr auto kTime = 15s;

/// A player on the session bus, which plays, is paused, or hangs.
class Player : public QDBusVirtualObject
{
public:
    enum class State { playing, paused, hanging };

    explicit Player(const QString &name)
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name))
    {
        m_bus.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        if (!m_bus.registerService(QStringLiteral("org.mpris.MediaPlayer2.") + name)) {
            std::fputs("NowPlayingBenchmark: there is no session bus\n", stderr);
            std::exit(2);
        }
    }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (state == State::hanging)
            return true;
        const QVariantMap song{{QStringLiteral("xesam:title"), QStringLiteral("Song")}};
        const QString word = state == State::playing ? QStringLiteral("Playing") : QStringLiteral("Paused");
        return bus.send(
            message.createReply(QVariantMap{{QStringLiteral("PlaybackStatus"), word},
                                            {QStringLiteral("Metadata"), song},
                                            {QStringLiteral("Position"), ++m_asked * 2'000'000}}));
    }

    State state = State::playing;

private:
    QDBusConnection m_bus;
    qint64 m_asked = 0;
};

std::chrono::nanoseconds processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Percent of a core from now on.
double share()
{
    const auto before = processorTime();
    pass(kTime);
    return 100 * milliseconds(processorTime() - before) / milliseconds(kTime);
}

void measureWings(Table &table, Player &player)
{
    pass(5s);
    const double playing = share();
    player.state = Player::State::paused;
    pass(5s);
    const double paused = share();
    table.add({"Wings while a song plays: processor", playing - paused, 1, "%", "over a paused song"});
    Table::note("  hub, wings and player together", playing, "%");
}

void measureGaps(Clock &clock, Player &music, Player &spotify)
{
    LoopWatch watch(clock);
    pass(8s);
    Table::note("Longest gap of the main thread, a song paused", watch.takeLongest(), "ms");
    music.state = spotify.state = Player::State::hanging;
    pass(8s);
    Table::note("  with two players that never answer", watch.takeLongest(), "ms");
}

} // namespace

int main(int argc, char *argv[])
{
    const Surroundings surroundings(argc, argv);
    registerViews();
    Player music(QStringLiteral("player"));
    Player spotify(QStringLiteral("spotify"));
    spotify.state = Player::State::paused;

    SystemClock clock;
    HubParts parts(clock);
    MprisApplications players(QDBusConnection::sessionBus());
    MprisExecutor scripts;
    const Platform platform = parts.platform({.players = &players, .scripts = &scripts});
    NotchServices services(parts.settings, NotchBranding::fennivar(), platform);
    QQmlEngine engine;
    const auto windows = chooseWindowSystem()->make(parts.defaults);
    PanelFactory panels(engine, *windows);
    const NotchGeometry geometry(twoDisplays().constFirst());
    NotchScreenModel model(geometry);
    const auto panel = panels.create(geometry.panelFrame(), model, services);
    panel->orderFront();
    services.start();
    Table table;
    measureWings(table, music);
    measureGaps(clock, music, spotify);
    return table.exitStatus();
}
