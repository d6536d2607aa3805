#include "PlayerStatus.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr double kMillisecondsPerSecond = 1000;
constexpr qsizetype kMostFurther = 10;

/// Players write numbers as the user's language has them.
double number(QString text)
{
    const double value = text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    return std::isfinite(value) ? value : 0;
}

/// Lines that nobody knows say nothing.
void readFurther(const QStringList &lines, PlayingTrack &track)
{
    namespace Line = PlayerScripts::StatusLine;
    const auto after = [](const QString &line, const char *begin) {
        const QLatin1String word(begin);
        return line.startsWith(word) ? std::optional(line.mid(word.size())) : std::nullopt;
    };
    for (const QString &line : lines) {
        if (const auto cover = after(line, Line::kCover))
            track.cover = *cover;
        else if (const auto rate = after(line, Line::kRate))
            track.rate = std::clamp(number(*rate), 0.0, 100.0);
        else if (line == QLatin1String(Line::kSeekable))
            track.canSeek = true;
    }
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
    readFurther(lines.mid(5, kMostFurther), track);
    return track;
}

} // namespace Kestrune
