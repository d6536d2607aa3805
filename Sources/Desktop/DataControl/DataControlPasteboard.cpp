#include "DataControlPasteboard.h"

#include "DataControlLoop.h"

namespace Kestrune {

using namespace std::chrono_literals;

bool DataControlPasteboard::isThere(const QByteArray &display)
{
    CompositorConnection connection(display);
    if (!connection.isAlive())
        return false;
    const DataControlGlobals globals(connection.get());
    bool answered = false;
    connection.whenCarriedOut([&answered] { answered = true; });
    std::vector<pollfd> nothingElse;
    const auto end = std::chrono::steady_clock::now() + 2s;
    while (connection.isAlive() && !answered && std::chrono::steady_clock::now() < end) {
        connection.sleep(nothingElse, PasteboardLoop::timeoutUntil(end));
        connection.dispatch();
    }
    return answered && globals.hasManager();
}

DataControlPasteboard::DataControlPasteboard(const QByteArray &display)
    : ThreadedPasteboard(
          [display](PasteboardLink &link) { return std::make_unique<DataControlLoop>(display, link); })
{}

} // namespace Kestrune
