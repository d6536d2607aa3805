#pragma once

#include <QString>

#include <array>

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
/// text by a stopped player. `spotify` counts its duration in milliseconds, `music` in seconds.
QString status(MediaPlayer player);

/// Answered with the current song's cover, or by `spotify` with its address.
QString artwork(MediaPlayer player);

QString command(PlayerCommand command, MediaPlayer player);

} // namespace PlayerScripts

} // namespace Kestrune
