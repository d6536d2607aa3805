// Single calls that the program makes often: one poll of the pointer, saving one setting.

#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "Desktop/X11/X11Pointer.h"
#include "NotchKit/NotchController.h"
#include "Surroundings.h"
#include "Table.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>

#include <xcb/xcb.h>

using namespace Benchmarks;
using namespace Kestrune;
using namespace std::chrono_literals;

namespace {

constexpr int kRepetitions = 9;

/// Runs `call` once per iteration and keeps the median, which a busy machine moves less than the mean.
template <typename Call>
void measure(benchmark::State &state, double budget, std::chrono::milliseconds pause, Call call)
{
    std::vector<double> samples;
    for ([[maybe_unused]] auto iteration : state) {
        if (pause > 0ms)
            std::this_thread::sleep_for(pause);
        const auto begin = std::chrono::steady_clock::now();
        call();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(time.count());
        samples.push_back(time.count() * 1e6);
    }
    state.counters["median"] = median(samples);
    state.counters["rare"] = quantile(samples, 0.99);
    state.counters["budget"] = budget;
}

/// What the machine takes to ask the X server anything and hear the answer.
double roundTrip()
{
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> x(xcb_connect(nullptr, nullptr),
                                                                         &xcb_disconnect);
    std::vector<double> samples;
    for (int i = 0; i < 2000; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        std::free(xcb_get_input_focus_reply(x.get(), xcb_get_input_focus(x.get()), nullptr));
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        samples.push_back(time.count() * 1e6);
    }
    return median(samples);
}

void pollPointer(benchmark::State &state)
{
    Fakes::FakeClock hubTime; // stands still: only the poll is measured
    HubParts parts(hubTime);
    parts.settings.setAllDisplays(true);
    NotchServices services(parts.settings, NotchBranding::fennivar(), parts.platform());
    Fakes::Platform around;
    around.displays.displays = twoDisplays();
    X11Pointer pointer;
    NotchController controller(services, around.ports({.pointer = &pointer}), around.panels);
    controller.start();
    if (controller.notches().size() != 2)
        state.SkipWithError("there are not two notches");
    measure(state, 60, 0ms, [&] {
        Q_EMIT pointer.stirred();
        around.clock.advance(0ms);
    });
    state.counters["peer"] = roundTrip();
}

struct Disk
{
    QTemporaryDir folder{QDir::homePath() + QStringLiteral("/XXXXXX")};
    SqliteUserDefaults defaults{folder.filePath(QStringLiteral("defaults.sqlite"))};
    NotchSettings settings{defaults};
};

void saveNote(benchmark::State &state, std::chrono::milliseconds pause)
{
    Disk disk;
    const QString text(400, QLatin1Char('n'));
    int typed = 0;
    measure(state, 100, pause, [&] { disk.settings.setNote(text + QString::number(++typed)); });
}

void saveNumber(benchmark::State &state, std::chrono::milliseconds pause)
{
    Disk disk;
    double delay = 0;
    measure(state, 100, pause, [&] { disk.settings.setHoverDelay(delay += 0.001); });
}

BENCHMARK(pollPointer)
    ->Name("One pointer poll, two displays")
    ->UseManualTime()
    ->MinTime(0.2)
    ->Repetitions(kRepetitions);
BENCHMARK_CAPTURE(saveNote, tight, 0ms)
    ->Name("Saving the note, one write after the other")
    ->UseManualTime()
    ->Iterations(3000)
    ->Repetitions(kRepetitions);
BENCHMARK_CAPTURE(saveNote, typed, 5ms)
    ->Name("Saving the note, a write each 5 ms")
    ->UseManualTime()
    ->Iterations(500)
    ->Repetitions(kRepetitions);
BENCHMARK_CAPTURE(saveNumber, tight, 0ms)
    ->Name("Saving the hover delay, one write after the other")
    ->UseManualTime()
    ->Iterations(3000)
    ->Repetitions(kRepetitions);
BENCHMARK_CAPTURE(saveNumber, typed, 5ms)
    ->Name("Saving the hover delay, a write each 5 ms")
    ->UseManualTime()
    ->Iterations(500)
    ->Repetitions(kRepetitions);

/// Why a run was given up, or nothing; the library's names for it have changed.
template <typename Run>
std::string errorOf(const Run &run)
{
    if constexpr (requires { run.error_message; })
        return run.error_message;
    else
        return run.skip_message;
}

/// Puts the median of each benchmark's repetitions into the table.
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (const std::string error = errorOf(run); !error.empty())
                qFatal("%s: %s", run.benchmark_name().c_str(), error.c_str());
            if (run.aggregate_name != "median")
                continue;
            const std::string &name = run.run_name.function_name;
            table.add({name, run.counters.at("median"), run.counters.at("budget"), "µs", "noisy: wall time"});
            Table::note("  99 % take at most", run.counters.at("rare"), "µs");
            if (const auto peer = run.counters.find("peer"); peer != run.counters.end())
                Table::note("  a bare round trip to the X server", peer->second, "µs");
            Table::note("  processor time, mean", run.GetAdjustedCPUTime() / 1000, "µs");
        }
    }

    Table table;
};

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    const Surroundings surroundings(argc, argv);
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.table.exitStatus();
}
