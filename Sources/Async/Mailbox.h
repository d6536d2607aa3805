#pragma once

#include <QtGlobal>

#include <deque>
#include <mutex>
#include <optional>
#include <utility>

namespace Kestrune {

/// A descriptor that can be made readable, for a poll to wake up on.
class Bell
{
public:
    Bell();
    ~Bell();
    Q_DISABLE_COPY_MOVE(Bell)

    /// -1 when there can be none.
    int descriptor() const { return m_descriptor; }

    void ring() const;
    void hush() const;

private:
    const int m_descriptor;
};

/// What other threads tell a thread that sleeps in a poll. All functions may be called on any thread. A
/// message that is never taken is destroyed all the same.
template <typename Message>
class Mailbox
{
public:
    Mailbox()
        : m_closed(m_bell.descriptor() < 0) // Nobody could be woken.
    {}

    /// Adds a message and wakes the thread; drops it once the mailbox is closed.
    void post(Message message)
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed)
            return;
        m_messages.push_back(std::move(message));
        m_bell.ring();
    }

    /// The oldest message, nothing when there is none. The descriptor is quiet once the last was taken.
    std::optional<Message> take()
    {
        const std::lock_guard lock(m_mutex);
        if (m_messages.empty())
            return std::nullopt;
        std::optional message(std::move(m_messages.front()));
        m_messages.pop_front();
        if (m_messages.empty() && !m_closed)
            m_bell.hush();
        return message;
    }

    /// Drops what is waiting and whatever comes.
    void close()
    {
        std::deque<Message> dropped; // Destroyed without the lock: what goes with a message may post another.
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        dropped.swap(m_messages);
        m_bell.ring();
    }

    bool isClosed() const
    {
        const std::lock_guard lock(m_mutex);
        return m_closed;
    }

    /// Readable while there is something to take, or the mailbox is closed.
    int descriptor() const { return m_bell.descriptor(); }

private:
    const Bell m_bell;
    mutable std::mutex m_mutex;
    std::deque<Message> m_messages;
    bool m_closed;
};

} // namespace Kestrune
