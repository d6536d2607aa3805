#include "PlayerScripts.h"

namespace Kestrune {

namespace {

QString verb(PlayerCommand command)
{
    switch (command) {
    case PlayerCommand::playPause:
        return QStringLiteral("playpause");
    case PlayerCommand::next:
        return QStringLiteral("next track");
    case PlayerCommand::previous:
        return QStringLiteral("previous track");
    }
    return {};
}

QString seekTo(MediaPlayer player, const QString &position)
{
    return QStringLiteral(R"(tell application "%1" to set player position to %2)")
        .arg(playerName(player), position);
}

} // namespace

QString playerName(MediaPlayer player)
{
    return player == MediaPlayer::music ? QStringLiteral("Music") : QStringLiteral("Spotify");
}

QString bundleIdentifier(MediaPlayer player)
{
    return player == MediaPlayer::music ? QStringLiteral("com.apple.Music")
                                        : QStringLiteral("com.spotify.client");
}

QString PlayerScripts::status(MediaPlayer player)
{
    return QStringLiteral(R"(tell application "%1"
  if player state is stopped then return ""
  set t to current track
  set d to duration of t
  return (player state as text) & "\n" & (name of t) & "\n" & (artist of t) & "\n" & (d as text) & "\n" & (player position as text)
end tell)")
        .arg(playerName(player));
}

QString PlayerScripts::artwork(MediaPlayer player)
{
    if (player == MediaPlayer::spotify)
        return QStringLiteral(R"(tell application "Spotify" to return artwork url of current track)");
    return QStringLiteral(
        R"(tell application "Music" to if (count of artworks of current track) > 0 then return data of artwork 1 of current track)");
}

QString PlayerScripts::command(PlayerCommand command, MediaPlayer player)
{
    return QStringLiteral(R"(tell application "%1" to %2)").arg(playerName(player), verb(command));
}

QString PlayerScripts::seek(MediaPlayer player, double position)
{
    return seekTo(player, QString::number(position, 'f', 3));
}

std::optional<std::pair<MediaPlayer, double>> PlayerScripts::parseSeek(const QString &script)
{
    for (const MediaPlayer player : kMediaPlayers) {
        const QString begin = seekTo(player, QString());
        bool isNumber = false;
        const double position = script.mid(begin.size()).toDouble(&isNumber);
        if (script.startsWith(begin) && isNumber && script == seek(player, position))
            return std::pair(player, position);
    }
    return std::nullopt;
}

} // namespace Kestrune
