#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "NotchKit/Platform/ScriptExecutor.h"
#include "PlayerStatus.h"

#include <QImage>

#include <memory>

namespace Kestrune {

class HttpClient;
class PictureReader;

/// Asks and commands the media players by scripts, which run one at a time and in their order, so that a slow
/// player holds up nothing but the scripts behind its own. Main thread only; what gives a task is for flows.
class ScriptBridge
{
public:
    using Player = MediaPlayer;
    using Track = PlayingTrack;

    using Command = PlayerCommand;

    /// Pixels of a cover's side, at most: what the largest view shows on a dense display.
    static constexpr int kCoverSide = 320;

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

    /// Covers with an address on the network are fetched with `http`, and read with `pictures`. The first two
    /// must outlive every answer.
    ScriptBridge(ScriptExecutor &executor, HttpClient &http, std::shared_ptr<PictureReader> pictures);

    /// The player's state.
    QCoro::Task<Result> state(Player player);

    /// The cover of its current song; a null image without one.
    QCoro::Task<QImage> artwork(Player player);

    /// Carries a command out; how that ends is not told.
    QFuture<ScriptOutcome> run(Command command, Player player);

    /// Sets the position in the current song, in seconds.
    QFuture<ScriptOutcome> seek(Player player, double position);

private:
    ScriptExecutor &m_executor;
    HttpClient &m_http;
    std::shared_ptr<PictureReader> m_pictures;
    Worker m_covers{"covers"};
};

} // namespace Kestrune
