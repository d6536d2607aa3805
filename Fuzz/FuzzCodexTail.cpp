// The end of a Codex session log.

#include "NotchKit/Platform/Utc.h"
#include "NotchKit/Tools/AIUsage/CodexReader.h"

#include <cmath>
#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QDateTime now = QDateTime::fromSecsSinceEpoch(1'800'000'000, kUtc);
    const QByteArray tail(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto limits = CodexReader::lastRateLimits(tail, now);
    if (!limits)
        return 0;
    for (const auto &window : {limits->first, limits->second}) {
        if (!window)
            continue;
        if (!std::isfinite(window->usedPercent) || (window->resetsAt && !window->resetsAt->isValid()))
            std::abort();
    }
    return 0;
}
