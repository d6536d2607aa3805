#include "MprisScripts.h"

#include "CoverSource.h"
#include "Log.h"
#include "MprisNames.h"
#include "NotchKit/Platform/PlayerScripts.h"

#include <QDBusError>
#include <QHash>

#include <algorithm>

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

bool isRefusal(const QDBusMessage &reply)
{
    return reply.type() == QDBusMessage::ErrorMessage && QDBusError(reply).type() == QDBusError::AccessDenied;
}

} // namespace

ScriptOutcome MprisScripts::execute(const QString &source)
{
    const auto script = scripts().constFind(source);
    if (script == scripts().cend())
        return ScriptFailed();
    switch (script->kind) {
    case Script::Kind::status:
        return status(script->player);
    case Script::Kind::artwork:
        return artwork(script->player);
    case Script::Kind::command:
        command(script->player, script->method);
        return QString();
    }
    return ScriptFailed();
}

ScriptOutcome MprisScripts::status(MediaPlayer player)
{
    QStringList names = m_bus.names();
    std::erase_if(m_deeds, [&](const auto &deed) { return !names.contains(deed.first); });
    names.removeIf([&](const QString &name) { return MprisNames::playerOf(name) != player; });
    const QHash<QString, QDBusMessage> replies = m_bus.properties(names);
    std::optional<MprisState> best;
    bool answered = false;
    bool refused = false;
    for (const QString &name : std::as_const(names)) {
        const QDBusMessage reply = replies.value(name);
        refused = refused || isRefusal(reply);
        const auto state = MprisState::of(name, reply);
        if (!state)
            continue;
        answered = true;
        noteDeed(*state);
        if (state->hasSong() && (!best || isBetter(*state, *best)))
            best = state;
    }
    if (best) {
        if (QString &chosen = m_chosen[player]; chosen != best->busName) {
            chosen = best->busName;
            qCInfo(playersLog, "followed: %s", qUtf8Printable(chosen));
        }
        return best->toStatus(player);
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
    const auto state =
        MprisState::of(chosen->second, m_bus.properties({chosen->second}).value(chosen->second));
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
        m_bus.call(chosen->second, method);
}

} // namespace Kestrune
