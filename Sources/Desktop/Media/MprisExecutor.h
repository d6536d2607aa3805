#pragma once

#include "Async/Bench.h"
#include "Async/Worker.h"
#include "NotchKit/Platform/ScriptExecutor.h"

namespace Kestrune {

class MprisScripts;

/// Answers the scripts of PlayerScripts over MPRIS.
class MprisExecutor : public ScriptExecutor
{
public:
    /// Parts of the bus names of players that are passed over; called on the main thread.
    using Ignored = std::function<QStringList()>;

    /// For the players on the session bus, or on the one at `address`.
    explicit MprisExecutor(const QString &address = {}, Ignored ignored = {});

    QFuture<ScriptOutcome> execute(const QString &source) override;

private:
    Ignored m_ignored;
    Bench<MprisScripts> m_scripts;
    Worker m_worker{"players"};
};

} // namespace Kestrune
