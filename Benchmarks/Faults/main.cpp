// Runs the real program, on a display, a bus and a home of its own, through one kind of fault or of long use:
//   KestruneFaults SCENARIO [COUNT]
// prints its figures in one line and ends with 1 where the program showed a fault. What happens by chance is
// decided by a seed, which is printed; KESTRUNE_SEED gives it again.

#include "Scenario.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

using namespace Faults;

struct Entry
{
    const char *name;
    Scenario run;
    int count;
};

constexpr Entry kScenarios[] = {
    {"kills", kills, 1000},    {"displays", displays, 1000}, {"monkey", monkey, 100000}, {"bus", bus, 1},
    {"fulldisk", fullDisk, 1}, {"readonly", readOnly, 1},    {"day", day, 24},
};

quint64 chosenSeed()
{
    bool given = false;
    const quint64 seed = qEnvironmentVariable("KESTRUNE_SEED").toULongLong(&given);
    return given ? seed : std::random_device()();
}

int usage()
{
    std::fputs("usage: KestruneFaults SCENARIO [COUNT]; the scenarios, and how often each does its thing:",
               stderr);
    for (const Entry &entry : kScenarios)
        std::fprintf(stderr, " %s %d", entry.name, entry.count);
    std::fputs("\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList words = QGuiApplication::arguments().mid(1);
    for (const Entry &entry : kScenarios) {
        if (words.value(0) != QLatin1String(entry.name))
            continue;
        const int count = words.size() > 1 ? words.at(1).toInt() : entry.count;
        if (count < 1)
            return usage();
        const quint64 seed = chosenSeed();
        std::printf("seed %llu\n", seed);
        std::fflush(stdout);
        Chance chance(seed);
        return entry.run(count, chance).print(words.constFirst());
    }
    return usage();
}
