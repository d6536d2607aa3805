#include "MprisNames.h"

namespace Kestrune {

std::optional<MediaPlayer> MprisNames::playerOf(const QString &busName)
{
    const QLatin1String prefix(kPrefix);
    if (!busName.startsWith(prefix))
        return std::nullopt;
    const QString name = busName.mid(prefix.size());
    // It only repeats what other players say.
    if (name == QLatin1String("playerctld"))
        return std::nullopt;
    return name == QLatin1String("spotify") ? MediaPlayer::spotify : MediaPlayer::music;
}

} // namespace Kestrune
