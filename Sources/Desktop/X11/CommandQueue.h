#pragma once

#include <QtGlobal>

#include <deque>
#include <functional>
#include <mutex>

namespace Kestrune {

class PasteboardLoop;

/// What the main thread asks of the pasteboard's thread, which sleeps on `descriptor` meanwhile. All
/// functions may be called on either thread. A command that is never carried out is destroyed all the same.
class CommandQueue
{
public:
    using Command = std::function<void(PasteboardLoop &)>;

    CommandQueue();
    ~CommandQueue();
    Q_DISABLE_COPY_MOVE(CommandQueue)

    /// Adds a command and wakes the thread; drops it once the queue is closed.
    void post(Command command);

    /// The oldest command, empty when there is none. The descriptor is quiet again afterwards.
    Command take();

    /// Drops what is waiting and whatever comes.
    void close();
    bool isClosed() const;

    /// Readable while there is something to take, or the queue is closed.
    int descriptor() const { return m_descriptor; }

private:
    void wake() const;

    mutable std::mutex m_mutex;
    std::deque<Command> m_commands;
    bool m_closed = false;
    int m_descriptor;
};

} // namespace Kestrune
