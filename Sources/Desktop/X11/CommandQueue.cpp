#include "CommandQueue.h"

#include <utility>

#include <sys/eventfd.h>
#include <unistd.h>

namespace Kestrune {

CommandQueue::CommandQueue()
    : m_descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    m_closed = m_descriptor < 0; // Nobody could be woken.
}

CommandQueue::~CommandQueue()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void CommandQueue::post(Command command)
{
    const std::lock_guard lock(m_mutex);
    if (m_closed)
        return;
    m_commands.push_back(std::move(command));
    wake();
}

CommandQueue::Command CommandQueue::take()
{
    const std::lock_guard lock(m_mutex);
    if (m_commands.empty())
        return {};
    Command command = std::move(m_commands.front());
    m_commands.pop_front();
    if (m_commands.empty() && !m_closed) {
        eventfd_t count = 0;
        eventfd_read(m_descriptor, &count);
    }
    return command;
}

void CommandQueue::close()
{
    std::deque<Command> dropped; // Destroyed without the lock: what goes with a command may post another.
    const std::lock_guard lock(m_mutex);
    m_closed = true;
    dropped.swap(m_commands);
    wake();
}

bool CommandQueue::isClosed() const
{
    const std::lock_guard lock(m_mutex);
    return m_closed;
}

void CommandQueue::wake() const { eventfd_write(m_descriptor, 1); }

} // namespace Kestrune
