// A row of the settings that another program has written.

#include "Desktop/Defaults/StoredValue.h"

#include <array>
#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr std::array kTypes{"bool", "integer", "double", "string", "list", "map", "data"};
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, static_cast<qsizetype>(size - 1));
    const unsigned form = *data / 16U;
    SqliteValue content = bytes;
    if (form % 4 == 1)
        content = SqliteText{bytes};
    else if (form % 4 == 2)
        content = static_cast<qint64>(bytes.toLongLong(nullptr, 16));
    else if (form % 4 == 3)
        content = bytes.toDouble();
    for (const QByteArray &type : {QByteArray(kTypes.at(*data % kTypes.size())), bytes.left(8)}) {
        const auto value = decode({SqliteText{type}, content});
        if (value && decode(encode(*value)) != value && bytes.toDouble() == bytes.toDouble())
            std::abort();
    }
    return 0;
}
