// Opens and closes a real notch many times, drawn in software, and looks at each frame.

#include "App/PanelFactory.h"
#include "App/WindowSystems.h"
#include "Desktop/Time/SystemClock.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "NotchKit/Shell/NotchWindow.h"
#include "NotchKit/Shell/ViewEngine.h"
#include "Surroundings.h"
#include "Table.h"
#include "Timing.h"

#include <QAbstractEventDispatcher>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kWarmUp = 3;
constexpr int kOpenings = 25;
constexpr auto kMotion = 450ms; // the springs still move
constexpr auto kRest = 900ms;   // they have come to rest

/// What every step of the motions took.
struct Frames
{
    std::vector<double> perSecond; ///< One of each motion.
    std::vector<double> work;      ///< Processor time since the step before, in milliseconds.
    std::vector<double> intervals; ///< Since the step before, in milliseconds.
    std::vector<double> repeated;  ///< Frames of each motion that showed no new step.
};

/// Looks at the frames in which the notch's outline has moved. Others repeat the same picture, as after the
/// X server uncovered a part of the window; their work counts towards the next step.
class Recorder
{
public:
    explicit Recorder(NotchWindow &window)
    {
        QObject::connect(&window, &NotchWindow::outlineChanged, &window, [this] { m_moved = true; });
        const auto swapped = [this] {
            if (std::exchange(m_moved, false))
                m_moments.push_back({std::chrono::steady_clock::now().time_since_epoch(), threadTime()});
            else
                ++m_repeated;
        };
        QObject::connect(&window, &QQuickWindow::frameSwapped, &window, swapped, Qt::DirectConnection);
    }

    /// Changes the model and collects the frames of the motion that begins.
    void record(Frames &frames, const std::function<void()> &change)
    {
        m_moments.clear();
        m_repeated = 0;
        change();
        pass(kMotion);
        const auto moments = std::exchange(m_moments, {});
        frames.repeated.push_back(m_repeated);
        for (std::size_t i = 1; i < moments.size(); ++i) {
            frames.work.push_back(milliseconds(moments[i].work - moments[i - 1].work));
            frames.intervals.push_back(milliseconds(moments[i].time - moments[i - 1].time));
        }
        if (moments.size() > 1) {
            const double length = milliseconds(moments.back().time - moments.front().time);
            frames.perSecond.push_back(1000 * static_cast<double>(moments.size() - 1) / length);
        }
        pass(kRest);
    }

private:
    struct Moment
    {
        std::chrono::nanoseconds time;
        std::chrono::nanoseconds work;
    };
    std::vector<Moment> m_moments;
    bool m_moved = false;
    int m_repeated = 0;
};

/// The work of the longest turn of the event loop while this lives: how long a click may have to wait.
class LongestTurn
{
public:
    LongestTurn()
    {
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                         &m_context, [this] {
                             const auto now = threadTime();
                             m_longest = std::max(m_longest, now - std::exchange(m_begin, now));
                         });
    }
    double milliseconds() const { return Benchmarks::milliseconds(m_longest); }

private:
    QObject m_context;
    std::chrono::nanoseconds m_begin = threadTime();
    std::chrono::nanoseconds m_longest{};
};

/// What a display allows.
struct Limits
{
    double perSecond;
    double work;     ///< ms
    double interval; ///< ms
};

Limits limits(const NotchWindow &window, bool isPaced)
{
    const double work = window.effectiveDevicePixelRatio() > 1 ? 16.7 : 8;
    // A display that paces the frames has sixty a second, some of them a little late, none left out.
    return isPaced ? Limits{59, work, 25} : Limits{60, work, 16.7};
}

void report(Table &table, const std::string &motion, const Frames &frames, const Limits &limits)
{
    table.add({motion + ", frames per second, median", median(frames.perSecond), limits.perSecond, "/s",
               "noisy: wall time", true});
    table.add({motion + ", work per frame, 95 %", quantile(frames.work, 0.95), limits.work, "ms", ""});
    table.add({motion + ", time between frames, 95 %", quantile(frames.intervals, 0.95), limits.interval,
               "ms", "noisy: wall time"});
    Table::note("  work per frame, median", median(frames.work), "ms");
    Table::note("  time between frames, median", median(frames.intervals), "ms");
    Table::note("  frames without a new step, each motion", median(frames.repeated), "");
}

} // namespace

int main(int argc, char *argv[])
{
    const Surroundings surroundings(argc, argv);
    registerViews();
    SystemClock clock;
    HubParts parts(clock);
    NotchServices services(parts.settings, NotchBranding::fennivar(), parts.platform());
    ViewEngine engine;
    const auto windows = chooseWindowSystem()->make(parts.defaults);
    PanelFactory panels(engine, *windows);
    const NotchGeometry geometry(twoDisplays().constFirst());
    NotchScreenModel model(geometry);
    const auto panel = panels.create(geometry.panelFrame(), model, services);
    auto *window = qobject_cast<NotchWindow *>(QGuiApplication::allWindows().value(0));
    if (!window)
        qFatal("the panel has no window");

    services.start();
    panel->setHitArea(geometry.hitRect(false, false));
    panel->orderFront();
    pass(kRest);

    Recorder recorder(*window);
    Frames opening, closing;
    const auto open = [&] {
        services.setAnyExpanded(true);
        services.show(model.selected());
        model.setExpanded(true);
    };
    const auto close = [&] {
        model.setExpanded(false);
        services.setAnyExpanded(false);
        services.show(std::nullopt);
    };
    auto loading = threadTime();
    double longest = 0;
    {
        const LongestTurn turn;
        window->prepare();
        pass(kRest);
        longest = turn.milliseconds();
    }
    const auto prepared = threadTime() - loading;
    loading = threadTime();
    open();
    const auto loaded = threadTime() - loading;
    pass(kRest);
    close();
    pass(kRest);
    for (int i = -kWarmUp; i < kOpenings; ++i) {
        if (i == 0)
            opening = closing = {};
        recorder.record(opening, open);
        recorder.record(closing, close);
    }

    Table table;
    const Limits allowed = limits(*window, windows->pacesFrames());
    report(table, "Opening animation", opening, allowed);
    report(table, "Closing animation", closing, allowed);
    Table::note("Making what opens first ahead, work", milliseconds(prepared), "ms");
    Table::note("  longest turn of the event loop", longest, "ms");
    Table::note("First opening: what is left, work", milliseconds(loaded), "ms");
    return table.exitStatus();
}
