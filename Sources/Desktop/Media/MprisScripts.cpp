#include "MprisScripts.h"

#include "CoverSource.h"
#include "Log.h"
#include "MprisNames.h"
#include "NotchKit/Platform/PlayerScripts.h"

#include <QDBusError>
#include <QDBusObjectPath>
#include <QHash>

#include <algorithm>
#include <iterator>
#include <vector>

namespace Kestrune {

namespace {

/// What a script is about.
struct Script
{
    enum class Kind { status, artwork, command };

    Kind kind;
    MediaPlayer player;
    QString method; ///< Of a command.
};

const QHash<QString, Script> &scripts()
{
    using Command = PlayerCommand;
    static const QHash<QString, Script> table = [] {
        QHash<QString, Script> known;
        for (const MediaPlayer player : kMediaPlayers) {
            known.insert(PlayerScripts::status(player), {Script::Kind::status, player, {}});
            known.insert(PlayerScripts::artwork(player), {Script::Kind::artwork, player, {}});
            const auto add = [&](Command command, const QString &method) {
                known.insert(PlayerScripts::command(command, player),
                             {Script::Kind::command, player, method});
            };
            add(Command::playPause, QStringLiteral("PlayPause"));
            add(Command::next, QStringLiteral("Next"));
            add(Command::previous, QStringLiteral("Previous"));
        }
        return known;
    }();
    return table;
}

/// The same song: one of the two may know no artist.
bool isSameSong(const MprisState &one, const MprisState &other)
{
    const bool isSameArtist = one.artist == other.artist || one.artist.isEmpty() || other.artist.isEmpty();
    return one.title == other.title && isSameArtist;
}

/// A browser's own word for what the desktop's extension tells of better.
void removeEchoes(std::vector<MprisState> &states)
{
    std::vector<MprisState> better;
    std::ranges::copy_if(states, std::back_inserter(better), [](const MprisState &state) {
        return MprisNames::isBrowserIntegration(state.busName) && state.hasSong();
    });
    std::erase_if(states, [&](const MprisState &state) {
        const auto isSame = [&](const MprisState &other) { return isSameSong(state, other); };
        return MprisNames::isBrowser(state.busName) && std::ranges::any_of(better, isSame);
    });
}

bool isRefusal(const QDBusMessage &reply)
{
    return reply.type() == QDBusMessage::ErrorMessage && QDBusError(reply).type() == QDBusError::AccessDenied;
}

} // namespace

ScriptOutcome MprisScripts::execute(const QString &source, const QStringList &ignored)
{
    if (const auto target = PlayerScripts::parseSeek(source)) {
        seek(target->first, target->second);
        return QString();
    }
    const auto script = scripts().constFind(source);
    if (script == scripts().cend())
        return ScriptFailed();
    switch (script->kind) {
    case Script::Kind::status:
        return status(script->player, ignored);
    case Script::Kind::artwork:
        return artwork(script->player);
    case Script::Kind::command:
        command(script->player, script->method);
        return QString();
    }
    return ScriptFailed();
}

ScriptOutcome MprisScripts::status(MediaPlayer player, const QStringList &ignored)
{
    QStringList names = m_bus.names();
    std::erase_if(m_deeds, [&](const auto &deed) { return !names.contains(deed.first); });
    names.removeIf([&](const QString &name) {
        return MprisNames::playerOf(name) != player || MprisNames::isIgnored(name, ignored);
    });
    const QHash<QString, QDBusMessage> replies = m_bus.properties(names);
    std::vector<MprisState> states;
    bool refused = false;
    for (const QString &name : std::as_const(names)) {
        const QDBusMessage reply = replies.value(name);
        refused = refused || isRefusal(reply);
        const auto state = MprisState::of(name, reply);
        if (state)
            states.push_back(*state);
    }
    const bool answered = !states.empty();
    removeEchoes(states);
    std::optional<MprisState> best;
    for (const MprisState &state : states) {
        noteDeed(state);
        if (state.hasSong() && (!best || isBetter(state, *best)))
            best = state;
    }
    if (best) {
        MprisState &chosen = m_chosen[player];
        if (chosen.busName != best->busName)
            qCInfo(playersLog, "followed: %s", qUtf8Printable(best->busName));
        chosen = *best;
        return best->toStatus(player, CoverSource::identify(best->cover));
    }
    if (m_chosen.erase(player) > 0)
        qCInfo(playersLog, "none followed any more");
    if (refused)
        qCDebug(playersLog, "the bus refuses to pass questions on");
    if (answered)
        return QString();
    return refused ? ScriptOutcome(ScriptNotPermitted()) : ScriptFailed();
}

/// Remembers what the player does; the latest of several deeds has the highest number.
void MprisScripts::noteDeed(const MprisState &state)
{
    const auto [deed, isNew] = m_deeds.try_emplace(state.busName, Deed{state.playback, state.title, 0});
    if (isNew || deed->second.playback != state.playback || deed->second.title != state.title)
        deed->second = {state.playback, state.title, ++m_deedCount};
}

bool MprisScripts::isBetter(const MprisState &state, const MprisState &other) const
{
    if (state.playback != other.playback)
        return state.playback == MprisState::Playback::playing;
    return m_deeds.at(state.busName).number > m_deeds.at(other.busName).number;
}

ScriptOutcome MprisScripts::artwork(MediaPlayer player)
{
    const auto chosen = m_chosen.find(player);
    if (chosen == m_chosen.end())
        return ScriptFailed();
    const QString &name = chosen->second.busName;
    const auto state = MprisState::of(name, m_bus.properties({name}).value(name));
    if (!state)
        return ScriptFailed();
    if (player == MediaPlayer::spotify)
        return state->cover.size() <= CoverSource::kLongestAddress ? state->cover : QString();
    return CoverSource::read(state->cover);
}

void MprisScripts::command(MediaPlayer player, const QString &method)
{
    const auto chosen = m_chosen.find(player);
    if (chosen != m_chosen.end())
        m_bus.call(chosen->second.busName, method);
}

/// In the song that the user saw: a player passes over the path of another one.
void MprisScripts::seek(MediaPlayer player, double position)
{
    const auto chosen = m_chosen.find(player);
    if (chosen == m_chosen.end() || chosen->second.seekableTrack.isEmpty())
        return;
    const auto length = static_cast<double>(chosen->second.length);
    const auto microseconds = static_cast<qint64>(std::clamp(position * 1e6, 0.0, length));
    m_bus.call(chosen->second.busName, QStringLiteral("SetPosition"),
               {QVariant::fromValue(QDBusObjectPath(chosen->second.seekableTrack)), microseconds});
}

} // namespace Kestrune
