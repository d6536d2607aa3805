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
#include <QScreen>

#include <cstdlib>

#include <sys/resource.h>
#include <xcb/shape.h>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kWarmUp = 3;
constexpr int kOpenings = 10;
constexpr auto kMotion = 450ms; // the springs still move
constexpr auto kRest = 900ms;   // they have come to rest

/// Of this thread so far, those that needed no disk.
long pageFaults()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_minflt;
}

/// What every step of the motions took.
struct Frames
{
    std::vector<double> perSecond; ///< One of each motion.
    std::vector<double> work;      ///< Processor time since the step before, in milliseconds.
    std::vector<double> intervals; ///< Since the step before, in milliseconds.
    std::vector<double> repeated;  ///< Frames of each motion that showed no new step.
    std::vector<double> faults;    ///< Pages of memory that each motion touched first.
    std::vector<double> shapes;    ///< How often each motion set where the window takes clicks.
};

/// Counts the changes of a window's input shape, of which the X server tells whoever asks.
class InputShapes
{
public:
    explicit InputShapes(const QWindow &window)
    {
        if (!qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
            return;
        m_server.reset(xcb_connect(nullptr, nullptr));
        m_notify = xcb_get_extension_data(m_server.get(), &xcb_shape_id)->first_event + XCB_SHAPE_NOTIFY;
        xcb_shape_select_input(m_server.get(), static_cast<xcb_window_t>(window.winId()), true);
        xcb_flush(m_server.get());
    }

    /// Since the last time; none where there is no X server.
    int take()
    {
        int changes = 0;
        while (m_server) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(
                xcb_poll_for_event(m_server.get()), &std::free);
            if (!event)
                break;
            const auto *shape = reinterpret_cast<const xcb_shape_notify_event_t *>(event.get());
            changes += shape->response_type == m_notify && shape->shape_kind == XCB_SHAPE_SK_INPUT;
        }
        return changes;
    }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_server{nullptr, &xcb_disconnect};
    int m_notify = 0;
};

/// Looks at the frames in which the notch's outline has moved. Others repeat the same picture, as after the
/// X server uncovered a part of the window; their work counts towards the next step.
class Recorder
{
public:
    explicit Recorder(NotchWindow &window)
        : m_shapes(window)
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
        m_shapes.take();
        const long faults = pageFaults();
        change();
        pass(kMotion);
        frames.faults.push_back(static_cast<double>(pageFaults() - faults));
        frames.shapes.push_back(m_shapes.take());
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
    InputShapes m_shapes;
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

/// The display's own frames, some of them a little late, none left out.
Limits limits(const NotchWindow &window)
{
    const double rate = window.screen()->refreshRate();
    return {rate - 1, window.effectiveDevicePixelRatio() > 1 ? 4.0 : 2.5, 1500 / rate};
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
    Table::note("  input shapes set, each motion", median(frames.shapes), "");
    Table::note("  page faults, each motion", median(frames.faults), "");
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
        panel->setHitArea(geometry.hitRect(true, false));
        model.setExpanded(true);
    };
    const auto close = [&] {
        panel->setHitArea(geometry.hitRect(false, false));
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
    const Limits allowed = limits(*window);
    Table::note("The display's refresh rate", window->screen()->refreshRate(), "/s");
    report(table, "Opening animation", opening, allowed);
    report(table, "Closing animation", closing, allowed);
    Table::note("Making what opens first ahead, work", milliseconds(prepared), "ms");
    Table::note("  longest turn of the event loop", longest, "ms");
    Table::note("First opening: what is left, work", milliseconds(loaded), "ms");
    return table.exitStatus();
}
