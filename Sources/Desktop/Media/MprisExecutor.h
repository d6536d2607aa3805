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
    /// For the players on the session bus, or on the one at `address`.
    explicit MprisExecutor(const QString &address = {});

    QFuture<ScriptOutcome> execute(const QString &source) override;

private:
    Bench<MprisScripts> m_scripts;
    Worker m_worker{"players"};
};

} // namespace Kestrune
