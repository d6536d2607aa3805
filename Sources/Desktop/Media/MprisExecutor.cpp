#include "MprisExecutor.h"

#include "MprisScripts.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongest = 3s; // Players are not waited for as long; a cover's file can be on a dead disk.

} // namespace

MprisExecutor::MprisExecutor(const QString &address)
    : m_scripts([address] { return std::make_unique<MprisScripts>(address); })
{}

QFuture<ScriptOutcome> MprisExecutor::execute(const QString &source)
{
    return m_worker.run(kLongest, [scripts = m_scripts, source] {
        return scripts.use([&](MprisScripts &player) { return player.execute(source); });
    });
}

} // namespace Kestrune
