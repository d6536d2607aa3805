#include "CompositorConnection.h"

#include "Descriptor.h"

#include <cerrno>
#include <cstring>

#include <sys/socket.h>
#include <sys/un.h>

namespace Kestrune {

namespace {

QByteArray socketOf(QByteArray display)
{
    if (display.isEmpty())
        display = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty() || display.startsWith('/'))
        return display;
    return qgetenv("XDG_RUNTIME_DIR") + '/' + display;
}

/// -1 without a compositor there, or with one that takes no more connections.
int connectTo(const QByteArray &path)
{
    sockaddr_un address{};
    if (path.isEmpty() || static_cast<size_t>(path.size()) >= sizeof address.sun_path)
        return -1;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), static_cast<size_t>(path.size()));
    Descriptor connected(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (::connect(connected.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        return -1;
    return connected.release();
}

} // namespace

CompositorConnection::CompositorConnection(const QByteArray &display)
{
    if (const int socket = connectTo(socketOf(display)); socket >= 0)
        m_display = wl_display_connect_to_fd(socket);
}

CompositorConnection::~CompositorConnection()
{
    for (const Waiting &waiting : m_waiting)
        wl_callback_destroy(waiting.callback);
    if (m_display)
        wl_display_disconnect(m_display);
}

bool CompositorConnection::dispatch() { return m_display && wl_display_dispatch_pending(m_display) > 0; }

void CompositorConnection::sleep(std::vector<pollfd> &others, int timeout)
{
    if (wl_display_prepare_read(m_display) != 0)
        return; // There is something to hand over.
    const bool isFull = wl_display_flush(m_display) < 0 && errno == EAGAIN;
    const auto events = static_cast<short>(isFull ? POLLIN | POLLOUT : POLLIN);
    others.push_back({wl_display_get_fd(m_display), events, 0});
    ::poll(others.data(), others.size(), timeout);
    const bool hasEvents = (others.back().revents & ~POLLOUT) != 0;
    others.pop_back();
    if (hasEvents)
        wl_display_read_events(m_display);
    else
        wl_display_cancel_read(m_display);
}

void CompositorConnection::whenCarriedOut(std::function<void()> then)
{
    static constexpr wl_callback_listener listener{&CompositorConnection::carriedOut};
    wl_callback *const callback = wl_display_sync(m_display);
    wl_callback_add_listener(callback, &listener, this);
    m_waiting.push_back({callback, Clock::now(), std::move(then)});
}

void CompositorConnection::carriedOut(void *self, wl_callback *callback, uint32_t)
{
    auto &waiting = static_cast<CompositorConnection *>(self)->m_waiting;
    const auto then = std::move(waiting.front().then);
    waiting.pop_front();
    wl_callback_destroy(callback);
    then();
}

std::optional<CompositorConnection::Clock::time_point> CompositorConnection::waitingSince() const
{
    return m_waiting.empty() ? std::nullopt : std::optional(m_waiting.front().since);
}

} // namespace Kestrune
