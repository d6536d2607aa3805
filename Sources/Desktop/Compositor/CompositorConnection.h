#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include <poll.h>

#include <wayland-client.h>

namespace Kestrune {

/// A connection to a Wayland compositor for one thread. It waits for the compositor nowhere but in `sleep`.
class CompositorConnection
{
public:
    /// Connects to `display`, a path or a name in the session's folder, or to the one in the environment when
    /// it is empty. The connection that a parent process may have left to this one is not touched.
    explicit CompositorConnection(const QByteArray &display);
    ~CompositorConnection();
    Q_DISABLE_COPY_MOVE(CompositorConnection)

    /// False when there is no compositor, or the connection broke.
    bool isAlive() const { return m_display && wl_display_get_error(m_display) == 0; }
    wl_display *get() const { return m_display; }

    /// Hands over what was read. Whether there was anything.
    bool dispatch();

    /// Sends what is to be sent, and waits until the compositor or one of `others` has something, but no
    /// longer than `timeout` milliseconds (-1: for ever).
    void sleep(std::vector<pollfd> &others, int timeout);

    using Clock = std::chrono::steady_clock;

    /// Calls `then`, in `dispatch`, once the compositor has carried out all that was asked of it before.
    void whenCarriedOut(std::function<void()> then);

    /// Since when the compositor has not said so; none when it has nothing to say.
    std::optional<Clock::time_point> waitingSince() const;

private:
    struct Waiting
    {
        wl_callback *callback;
        Clock::time_point since;
        std::function<void()> then;
    };

    static void carriedOut(void *self, wl_callback *callback, uint32_t);

    wl_display *m_display = nullptr;
    std::deque<Waiting> m_waiting; ///< The compositor answers in this order.
};

} // namespace Kestrune
