#pragma once

#include "NotchKit/Platform/ScriptExecutor.h"
#include "PlayerStatus.h"

#include <QFuture>
#include <QImage>
#include <QThreadPool>

#include <QCoroTask>

namespace Kestrune {

class HttpClient;

/// Asks and commands the media players by scripts, which run one at a time and in their order on a thread of
/// their own, so that a slow player holds up nothing but the scripts behind its own. Main thread only.
class ScriptBridge
{
public:
    using Player = MediaPlayer;
    using Track = PlayingTrack;

    enum class Command { playPause, next, previous };

    struct None
    {
        bool operator==(const None &) const = default;
    };
    struct Denied
    {
        bool operator==(const Denied &) const = default;
    };

    /// What a player says: its song, that it must not be asked, or nothing that is of use.
    using Result = std::variant<None, Denied, Track>;

    /// Covers with an address on the network are fetched with `http`. Both must outlive every answer.
    ScriptBridge(ScriptExecutor &executor, HttpClient &http);

    /// The player's state.
    QFuture<Result> state(Player player);

    /// The cover of its current song; a null image without one.
    QCoro::Task<QImage> artwork(Player player);

    /// Carries a command out; how that ends is not told.
    QFuture<void> run(Command command, Player player);

    /// The scripts, to the letter.
    static QString statusScript(Player player);
    static QString artworkScript(Player player);
    static QString commandScript(Command command, Player player);

private:
    ScriptExecutor &m_executor;
    HttpClient &m_http;
    QThreadPool m_queue;
};

} // namespace Kestrune
