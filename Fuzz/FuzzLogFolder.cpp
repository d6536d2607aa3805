// A folder of Claude Code's logs that changes between looks: what the reader makes of what was appended, cut
// and replaced, and over restarts, is what a plain one makes of it, in zones and on days that change their
// clocks.

#include "NotchKit/Tools/AIUsage/ClaudeLogReader.h"
#include "RandomLogs.h"
#include "SlowLogReader.h"

#include <QTemporaryDir>

#include <cstdlib>
#include <memory>

using namespace Kestrune;

namespace {

void useZone(unsigned index)
{
    static constexpr std::array kZones{"UTC",          "Asia/Kathmandu",      "America/Havana",
                                       "Pacific/Apia", "Australia/Lord_Howe", "Europe/Berlin"};
    qputenv("TZ", kZones.at(index));
    tzset();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QString memory = QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath();
    static const QTemporaryDir folder(memory + u"/FuzzLogFolder-XXXXXX"_s);
    QDir(folder.path()).removeRecursively();
    RandomLogs logs(folder.path(), {data, size});
    useZone(logs.below(6));
    // Around the changes of the clock in both halves of the year.
    const QString start = logs.below(2) ? u"2026-03-29T01:30:00Z"_s : u"2026-10-04T15:00:00Z"_s;
    QDateTime now = QDateTime::fromString(start, Qt::ISODate);
    const QString known = folder.filePath(u"memory"_s);
    auto reader = std::make_unique<ClaudeLogReader>(QStringList(folder.path()), known);
    SlowLogReader slow(folder.path());
    for (int step = 0; step < 30 && !logs.atEnd(); ++step) {
        for (unsigned changes = logs.below(6); changes > 0; --changes)
            logs.change(now);
        if (reader->summary(now) != slow.summary(now))
            std::abort();
        if (logs.below(8) == 0) {
            reader->remember(0);
            reader = std::make_unique<ClaudeLogReader>(QStringList(folder.path()), known);
        }
        now = now.addMSecs(logs.below(5 * 3'600'000));
    }
    return 0;
}
