#pragma once

#include "NotchKit/Platform/PlayerScripts.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace Kestrune {

/// What one player on the bus says of itself.
struct MprisState
{
    enum class Playback { stopped, paused, playing };

    QString busName;
    Playback playback = Playback::stopped;
    QString title;         ///< Of the song; where it has none, the name of its file or of the player.
    QString artist;        ///< Several are listed.
    QString cover;         ///< The address of its cover.
    qint64 length = 0;     ///< Microseconds.
    qint64 position = 0;   ///< Microseconds.
    double rate = 1;       ///< Seconds of the song that a second plays.
    QString seekableTrack; ///< The object path of the song, where its position can be set.

    /// Whether there is a song to show.
    bool hasSong() const { return playback != Playback::stopped; }

    /// Reads the properties that a player replied with, whatever their types; nothing for what is no such
    /// reply.
    static std::optional<MprisState> of(const QString &busName, const QDBusMessage &reply);

    /// As the status script tells it: a line for the state, the title, the artist, the length and the
    /// position, and those of StatusLine that say something; empty without a song. `coverIdentity` is that of
    /// its cover.
    QString toStatus(MediaPlayer player, const QString &coverIdentity = {}) const;
};

} // namespace Kestrune
