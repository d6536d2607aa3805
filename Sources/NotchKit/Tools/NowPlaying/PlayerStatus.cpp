#include "PlayerStatus.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr double kMillisecondsPerSecond = 1000;

/// Players write numbers as the user's language has them.
double number(QString text)
{
    const double value = text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    return std::isfinite(value) ? value : 0;
}

} // namespace

double PlayingTrack::progress() const { return duration > 0 ? std::clamp(position / duration, 0.0, 1.0) : 0; }

std::optional<PlayingTrack> parsePlayerStatus(MediaPlayer player, const QString &answer)
{
    const QStringList lines = answer.split(QLatin1Char('\n'));
    if (lines.size() < 5)
        return std::nullopt;
    PlayingTrack track;
    track.playing = lines.at(0) == QLatin1String("playing");
    track.title = lines.at(1);
    track.artist = lines.at(2);
    track.duration = number(lines.at(3));
    if (player == MediaPlayer::spotify)
        track.duration /= kMillisecondsPerSecond;
    track.position = number(lines.at(4));
    return track;
}

} // namespace Kestrune
