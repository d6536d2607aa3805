// What a program that has been taken over may ask the reader of calendars.

#include "Desktop/Reader/CalendarWire.h"

#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto question = CalendarQuestion::parse(bytes);
    if (question && !CalendarQuestion::parse(question->bytes()))
        std::abort();
    return 0;
}
