// A calendar file that any program may have written: reading it, its occurrences, and completing its tasks.

#include "NotchKit/Platform/Utc.h"
#include "ReaderHelper/Calendars/IcalLines.h"
#include "ReaderHelper/Calendars/IcalOccurrences.h"
#include "ReaderHelper/Calendars/IcalReader.h"
#include "ReaderHelper/Calendars/TaskCompletion.h"

#include <cstdlib>

using namespace Kestrune;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static IcalReader reader;
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QDateTime now(QDate(2026, 3, 28), QTime(10, 0), kUtc);
    const IcalRange range{now, now.addDays(2)};
    if (text.endsWith('\n'))
        require(IcalLines(text).text() == text);
    const auto contents = reader.readCalendar(text);
    if (!contents)
        return 0;
    IcalSuspects suspects;
    for (const CalendarEvent &event :
         icalOccurrences(contents->events, range, QStringLiteral("x"), suspects).events)
        require(event.start.isValid() && event.end >= event.start && event.start < range.to &&
                event.end >= now);
    for (const CalendarTask &task : icalOpenTasks(contents->tasks, QStringLiteral("x"))) {
        const auto id = IcalTaskId::parse(task.id);
        const auto done = id ? completeTask(text, id->uid, id->instance, now, reader) : std::nullopt;
        require(!done || (done->text.contains(done->task) && reader.readCalendar(done->text)));
    }
    return 0;
}
