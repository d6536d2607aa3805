// Scrolls scripts of several lengths in a real notch, drawn in software at scale 1, and looks at each frame.

#include "App/PanelFactory.h"
#include "App/WindowSystems.h"
#include "Desktop/Time/SystemClock.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "NotchKit/Shell/NotchWindow.h"
#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "Surroundings.h"
#include "Table.h"
#include "Timing.h"

#include <QQmlEngine>

#include <cmath>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr auto kPlay = 5s;
constexpr double kFast = 140; // Points per second: a new picture with every frame.

QString script(int words)
{
    QString text;
    for (int i = 0; i < words; ++i)
        text += QStringLiteral("word%1").arg(i * 7919 % 10007) + QLatin1Char(i % 120 == 119 ? '\n' : ' ');
    return text;
}

/// One notch with the teleprompter in it.
struct Notch
{
    SystemClock clock;
    HubParts parts{clock};
    NotchServices services{parts.settings, NotchBranding::fennivar(), parts.platform()};
    TeleprompterModel &prompter = *services.model<TeleprompterModel>();
    QQmlEngine engine;
    std::unique_ptr<WindowSystem> windows = chooseWindowSystem()->make(parts.defaults);
    PanelFactory panels{engine, *windows};
    NotchGeometry geometry{twoDisplays().constFirst()};
    NotchScreenModel model{geometry};
    std::unique_ptr<NotchPanel> panel = panels.create(geometry.panelFrame(), model, services);

    Notch()
    {
        services.start();
        panel->setHitArea(geometry.hitRect(false, false));
        panel->orderFront();
        model.setSelected(NotchTool::teleprompter);
        services.setAnyExpanded(true);
        services.show(NotchTool::teleprompter);
        model.setExpanded(true);
        pass(1500ms);
    }
};

/// Shows another script and says what laying it out took, all of it.
double layOut(Notch &notch, int words)
{
    notch.parts.settings.setPrompterText(script(words));
    const auto before = threadTime();
    while (std::isinf(notch.prompter.maximumOffset()))
        QCoreApplication::processEvents();
    return milliseconds(threadTime() - before);
}

void measure(Table &table, Notch &notch, const QQuickWindow &window, int words)
{
    const std::string what = "Teleprompter, " + std::to_string(words) + " words";
    notch.prompter.restart();
    Table::note(what + ": laying out, work", layOut(notch, words), "ms");
    notch.prompter.scrollTo(notch.prompter.maximumOffset() / 2);
    pass(500ms);

    std::vector<double> work, intervals;
    std::chrono::nanoseconds workBefore{}, timeBefore{};
    const auto swapped = QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [&] {
            const std::chrono::nanoseconds time = std::chrono::steady_clock::now().time_since_epoch();
            if (timeBefore.count() > 0) {
                work.push_back(milliseconds(threadTime() - workBefore));
                intervals.push_back(milliseconds(time - timeBefore));
            }
            workBefore = threadTime();
            timeBefore = time;
        },
        Qt::DirectConnection);
    notch.prompter.setPlaying(true);
    pass(kPlay);
    notch.prompter.setPlaying(false);
    QObject::disconnect(swapped);
    const double perSecond = static_cast<double>(work.size()) / std::chrono::duration<double>(kPlay).count();
    table.add({what + ", frames per second", perSecond, 60, "/s", "noisy: wall time", true});
    table.add({what + ", work per frame, 95 %", quantile(work, 0.95), 16.7, "ms", ""});
    Table::note("  work per frame, median", median(work), "ms");
    Table::note("  time between frames, median", median(intervals), "ms");
    Table::note("  time between frames, 95 %", quantile(intervals, 0.95), "ms", "noisy: wall time");
}

} // namespace

int main(int argc, char *argv[])
{
    const Surroundings surroundings(argc, argv);
    registerViews();
    Notch notch;
    const auto *window = qobject_cast<QQuickWindow *>(QGuiApplication::allWindows().value(0));
    if (!window)
        qFatal("the panel has no window");
    notch.parts.settings.setPrompterSpeed(kFast);
    Table table;
    for (const int words : {1000, 20'000})
        measure(table, notch, *window, words);
    return table.exitStatus();
}
