// What a reader of calendars that strangers have taken over may answer.

#include "Desktop/Reader/CalendarWire.h"

#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto answer = CalendarAnswer::parse(bytes);
    if (!answer)
        return 0;
    for (const IcalFound &found : answer->found) {
        for (const CalendarEvent &event : found.events) {
            if (!event.start.isValid() || event.end < event.start)
                std::abort();
        }
    }
    if (!CalendarAnswer::parse(answer->bytes()))
        std::abort();
    return 0;
}
