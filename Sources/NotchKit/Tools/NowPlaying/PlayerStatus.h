#pragma once

#include "NotchKit/Platform/PlayerScripts.h"

#include <QMetaType>

#include <optional>

namespace Kestrune {

/// The song that a player plays or has paused. Times are seconds.
class PlayingTrack
{
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString artist MEMBER artist)
    Q_PROPERTY(double duration MEMBER duration)
    Q_PROPERTY(double position MEMBER position)
    Q_PROPERTY(bool playing MEMBER playing)
    Q_PROPERTY(bool canSeek MEMBER canSeek)
    Q_PROPERTY(double progress READ progress)

public:
    QString title;
    QString artist;
    double duration = 0; ///< 0 when the player does not tell.
    double position = 0;
    bool playing = false;
    bool canSeek = false; ///< Its position can be set.
    double rate = 1;      ///< Seconds of it that a second plays.
    QString cover;        ///< Changes with its cover, and only then; empty without one.

    /// The part of it that has been played, from 0 to 1.
    double progress() const;

    bool operator==(const PlayingTrack &) const = default;
};

/// Reads what a player answered to the status script: its state, the title, the artist, the duration and the
/// position, a line each, and those of StatusLine. Nothing for an answer with fewer lines, which a stopped
/// player gives. A number that cannot be read is 0. Any thread.
std::optional<PlayingTrack> parsePlayerStatus(MediaPlayer player, const QString &answer);

} // namespace Kestrune
