#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <wayland-client.h>

/// A test's own connection to a compositor.
class WaylandConnection
{
public:
    /// `socket` is the compositor's, with its folder.
    explicit WaylandConnection(const QString &socket)
        : m_display(wl_display_connect(socket.toUtf8().constData()))
    {
        static constexpr wl_registry_listener listener{offered, gone};
        if (!m_display)
            return;
        m_registry = wl_display_get_registry(m_display);
        wl_registry_add_listener(m_registry, &listener, this);
        sync();
    }
    ~WaylandConnection()
    {
        if (m_display)
            wl_display_disconnect(m_display);
    }
    Q_DISABLE_COPY_MOVE(WaylandConnection)

    /// The compositor's object of that kind; null where it has none.
    template <typename Object>
    Object *bind(const wl_interface &interface, uint32_t version) const
    {
        const auto found = m_offers.constFind(interface.name);
        return found == m_offers.cend()
                   ? nullptr
                   : static_cast<Object *>(wl_registry_bind(m_registry, *found, &interface, version));
    }

    /// Until the compositor has answered all that was asked.
    void sync() const { wl_display_roundtrip(m_display); }

private:
    static void offered(void *data, wl_registry *, uint32_t name, const char *interface, uint32_t)
    {
        static_cast<WaylandConnection *>(data)->m_offers.insert(interface, name);
    }
    static void gone(void *, wl_registry *, uint32_t) {}

    wl_display *m_display;
    wl_registry *m_registry = nullptr;
    QHash<QByteArray, uint32_t> m_offers;
};
