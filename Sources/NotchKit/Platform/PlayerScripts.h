#pragma once

#include <QString>

#include <array>
#include <optional>
#include <utility>

/// The scripts that media players are asked and commanded by: the models write them, an executor understands
/// them.
namespace Kestrune {

/// The media players that are asked for their song. Where two are as good, the first one counts.
enum class MediaPlayer { music, spotify };

inline constexpr std::array kMediaPlayers{MediaPlayer::music, MediaPlayer::spotify};

/// What scripts call the player.
QString playerName(MediaPlayer player);

/// The bundle identifier of its application.
QString bundleIdentifier(MediaPlayer player);

enum class PlayerCommand { playPause, next, previous };

/// A cover of more bytes is left out.
constexpr qint64 kMostCoverBytes = qint64{8} * 1024 * 1024;

/// The scripts, to the letter.
namespace PlayerScripts {

/// Answered with the state, the title, the artist, the duration and the position, a line each; with an empty
/// text by a stopped player. `spotify` counts its duration in milliseconds, `music` in seconds. Lines of
/// StatusLine may follow.
QString status(MediaPlayer player);

/// What the further lines of a status begin with.
namespace StatusLine {
inline constexpr auto kCover = "cover:"; ///< Then what changes with the cover, and only with it.
inline constexpr auto kRate = "rate:";   ///< Then the seconds of the song that a second plays; else it is 1.
inline constexpr auto kSeekable = "seekable"; ///< The position can be set.
} // namespace StatusLine

/// Answered with the current song's cover, or by `spotify` with its address.
QString artwork(MediaPlayer player);

QString command(PlayerCommand command, MediaPlayer player);

/// Sets the position in the current song, in seconds.
QString seek(MediaPlayer player, double position);

/// What `seek` was given; nothing for any other text.
std::optional<std::pair<MediaPlayer, double>> parseSeek(const QString &script);

} // namespace PlayerScripts

} // namespace Kestrune
