#include "SelectionConnection.h"

#include <xcb/xfixes.h>

namespace Kestrune {

namespace {

bool isForged(const xcb_generic_event_t &event)
{
    return (event.response_type & X11::kSent) != 0 && (event.response_type & 0x7f) != XCB_SELECTION_NOTIFY;
}

} // namespace

SelectionConnection::SelectionConnection(const QByteArray &display)
    : m_connection(xcb_connect(display.isEmpty() ? nullptr : display.constData(), nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        return;
    const auto *extension = xcb_get_extension_data(m_connection, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return;
    // The server takes no other request of the extension from a client that has not told its version.
    const auto cookie = xcb_xfixes_query_version(m_connection, 1, 0);
    const X11::Reply<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(m_connection, cookie, nullptr));
    if (!version)
        return;
    m_ownerEvent = static_cast<uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    renewWindow();
}

SelectionConnection::~SelectionConnection() { xcb_disconnect(m_connection); }

bool SelectionConnection::isAlive() const
{
    return m_ownerEvent != 0 && xcb_connection_has_error(m_connection) == 0;
}

bool SelectionConnection::isLossOfWindow(const xcb_generic_event_t &event) const
{
    return event.response_type == XCB_DESTROY_NOTIFY &&
           reinterpret_cast<const xcb_destroy_notify_event_t &>(event).window == m_window;
}

void SelectionConnection::renewWindow()
{
    m_window = createWindow(XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

SelectionConnection::Event SelectionConnection::nextEvent()
{
    Event event;
    do {
        if (m_held.empty()) {
            event.reset(xcb_poll_for_event(m_connection));
        } else {
            event = std::move(m_held.front());
            m_held.pop_front();
        }
    } while (event && (isForged(*event) || m_abandoned.handle(m_connection, *event)));
    return event;
}

void SelectionConnection::watchOwner(xcb_atom_t selection)
{
    xcb_xfixes_select_selection_input(m_connection, m_window, selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

bool SelectionConnection::isOwnerEvent(const xcb_generic_event_t &event) const
{
    return event.response_type == m_ownerEvent;
}

xcb_window_t SelectionConnection::ownerOf(xcb_atom_t selection) const
{
    const X11::Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, selection), nullptr));
    return reply ? reply->owner : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

xcb_atom_t SelectionConnection::atom(const QByteArray &name)
{
    const auto known = m_atoms.constFind(name);
    if (known != m_atoms.cend())
        return *known;
    const auto cookie = xcb_intern_atom(m_connection, false, static_cast<uint16_t>(name.size()), name.data());
    const X11::Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    const xcb_atom_t value = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    m_atoms.insert(name, value);
    return value;
}

QList<QByteArray> SelectionConnection::names(const QList<xcb_atom_t> &atoms) const
{
    QList<xcb_get_atom_name_cookie_t> cookies;
    cookies.reserve(atoms.size());
    for (const xcb_atom_t atom : atoms)
        cookies.append(xcb_get_atom_name(m_connection, atom));
    QList<QByteArray> names;
    for (const auto cookie : cookies) {
        xcb_generic_error_t *failure = nullptr;
        const X11::Reply<xcb_get_atom_name_reply_t> reply(
            xcb_get_atom_name_reply(m_connection, cookie, &failure));
        const X11::Reply<xcb_generic_error_t> error(failure);
        names.append(reply ? QByteArray(xcb_get_atom_name_name(reply.get()),
                                        xcb_get_atom_name_name_length(reply.get()))
                           : QByteArray());
    }
    return names;
}

xcb_timestamp_t SelectionConnection::serverTime()
{
    // The server tells when it wrote the property, whatever another client has put there. It refuses only for
    // a window that is gone; once it has confirmed the request, the event has arrived, too.
    const xcb_atom_t property = atom("KESTRUNE_TIME");
    const auto cookie = xcb_change_property_checked(m_connection, XCB_PROP_MODE_REPLACE, m_window, property,
                                                    XCB_ATOM_INTEGER, 32, 0, nullptr);
    const X11::Reply<xcb_generic_error_t> error(xcb_request_check(m_connection, cookie));
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    while (!error && time == XCB_CURRENT_TIME) {
        Event event(xcb_poll_for_queued_event(m_connection));
        if (!event)
            break;
        const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(*event);
        if (event->response_type == XCB_PROPERTY_NOTIFY && sequenceOf(*event) == cookie.sequence &&
            change.window == m_window && change.atom == property)
            time = change.time;
        else
            m_held.push_back(std::move(event));
    }
    return time;
}

bool SelectionConnection::isOwn(xcb_window_t window) const
{
    const auto *setup = xcb_get_setup(m_connection);
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

xcb_window_t SelectionConnection::createWindow() { return createWindow(XCB_EVENT_MASK_PROPERTY_CHANGE); }

xcb_window_t SelectionConnection::createWindow(uint32_t events)
{
    const auto *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, 0, window, screen->root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      screen->root_visual, XCB_CW_EVENT_MASK, &events);
    return window;
}

void SelectionConnection::destroyWindow(xcb_window_t window) { xcb_destroy_window(m_connection, window); }

void SelectionConnection::abandonWindow(xcb_window_t window, xcb_atom_t property)
{
    m_abandoned.add(m_connection, window, property);
}

} // namespace Kestrune
