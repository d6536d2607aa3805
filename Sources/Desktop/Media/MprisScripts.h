#pragma once

#include "MprisBus.h"
#include "MprisPlayer.h"
#include "NotchKit/Platform/ScriptExecutor.h"

#include <map>

namespace Kestrune {

/// Understands the scripts of PlayerScripts, and no others, and answers them over MPRIS. Spotify is
/// the player of that bus name; Music is the best of all the others: one that plays before one that is
/// paused, then the one that did something last. A page that a browser and the desktop's extension for it
/// both tell of is the extension's. Commands and covers are for the player that the last status was of. One
/// thread at a time, which may wait.
class MprisScripts
{
public:
    /// For the players on the session bus, or on the one at `address`.
    explicit MprisScripts(const QString &address = {})
        : m_bus(address)
    {}

    /// Players whose bus name holds one of `ignored` are passed over.
    ScriptOutcome execute(const QString &source, const QStringList &ignored = {});

private:
    /// What a player did last, as far as it has been seen.
    struct Deed
    {
        MprisState::Playback playback;
        QString title;
        qint64 number; ///< Counts all deeds.
    };

    ScriptOutcome status(MediaPlayer player, const QStringList &ignored);
    void seek(MediaPlayer player, double position);
    ScriptOutcome artwork(MediaPlayer player);
    void command(MediaPlayer player, const QString &method);
    void noteDeed(const MprisState &state);
    bool isBetter(const MprisState &state, const MprisState &other) const;

    MprisBus m_bus;
    std::map<MediaPlayer, MprisState> m_chosen; ///< As the last status had it.
    std::map<QString, Deed> m_deeds;            ///< By bus name.
    qint64 m_deedCount = 0;
};

} // namespace Kestrune
