// What a media player answered to the status script.

#include "NotchKit/Tools/NowPlaying/PlayerStatus.h"

#include <cmath>
#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString answer =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const MediaPlayer player : kMediaPlayers) {
        const auto track = parsePlayerStatus(player, answer);
        if (track.has_value() != (answer.count(QLatin1Char('\n')) >= 4))
            std::abort();
        if (!track)
            continue;
        const bool isSound = std::isfinite(track->duration) && std::isfinite(track->position) &&
                             track->progress() >= 0 && track->progress() <= 1;
        if (!isSound || track->title.contains(QLatin1Char('\n')) ||
            *track != *parsePlayerStatus(player, answer))
            std::abort();
    }
    return 0;
}
