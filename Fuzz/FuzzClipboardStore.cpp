// The stored clipboard history, as another program or a damaged disk may leave it: it is read as a whole or
// not at all, and what was read is stored so that it reads the same, whatever was remembered of the time
// before.

#include "NotchKit/Tools/Clipboard/ClipboardItem.h"

#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray stored(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto items = decodeClipboardItems(stored);
    ClipboardEncoder encoder;
    for (int time = 0; items && time < 2; ++time) {
        if (decodeClipboardItems(encoder.encode(*items)) != items)
            std::abort();
    }
    for (const ClipboardItem &item : items.value_or(ClipboardItems())) {
        if (item.preview().size() > item.text.size() || item.symbol().isEmpty())
            std::abort();
    }
    return 0;
}
