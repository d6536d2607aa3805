#include "MprisExecutor.h"

#include "MprisScripts.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongest = 3s; // Players are not waited for as long; a cover's file can be on a dead disk.

} // namespace

MprisExecutor::MprisExecutor(const QString &address, Ignored ignored)
    : m_ignored(std::move(ignored))
    , m_scripts([address] { return std::make_unique<MprisScripts>(address); })
{}

QFuture<ScriptOutcome> MprisExecutor::execute(const QString &source)
{
    const QStringList ignored = m_ignored ? m_ignored() : QStringList();
    return m_worker.run(kLongest, [scripts = m_scripts, source, ignored] {
        return scripts.use([&](MprisScripts &player) { return player.execute(source, ignored); });
    });
}

} // namespace Kestrune
