#pragma once

#include "AbandonedTransfers.h"
#include "X11Connection.h"

#include <QByteArray>
#include <QHash>

#include <deque>

namespace Kestrune {

/// A connection to the X server for one thread to exchange selections over, with the hidden window that
/// owns them. Every call may wait for the server, none for another client.
class SelectionConnection
{
public:
    using Event = X11::Reply<xcb_generic_event_t>;

    /// Connects to `display`, or to the one in the environment when it is empty.
    explicit SelectionConnection(const QByteArray &display);
    ~SelectionConnection();
    Q_DISABLE_COPY_MOVE(SelectionConnection)

    /// False when there is no server, it lacks XFixes, or the connection broke.
    bool isAlive() const;
    xcb_connection_t *get() const { return m_connection; }
    xcb_window_t window() const { return m_window; }

    /// Whether the event tells that another client destroyed the window; then there has to be a new one, and
    /// all that hung on the old one done again.
    bool isLossOfWindow(const xcb_generic_event_t &event) const;
    void renewWindow();

    /// The next event that has arrived, or null. Of those that other clients send only the answers to
    /// questions are among them: all else is the server's to tell.
    Event nextEvent();

    /// The number of the last request that the server had carried out when it sent the event.
    static uint32_t sequenceOf(const xcb_generic_event_t &event) { return event.full_sequence; }

    /// Whether the request or event numbered `one` came before `other`; the numbers wrap around.
    static bool precedes(uint32_t one, uint32_t other) { return static_cast<int32_t>(one - other) < 0; }

    /// Asks for an event whenever the selection changes hands; `isOwnerEvent` knows those events.
    void watchOwner(xcb_atom_t selection);
    bool isOwnerEvent(const xcb_generic_event_t &event) const;
    xcb_window_t ownerOf(xcb_atom_t selection) const;

    xcb_atom_t atom(const QByteArray &name);

    /// The names of `atoms`, in their order; empty for one that does not exist.
    QList<QByteArray> names(const QList<xcb_atom_t> &atoms) const;

    /// The time on the server's clock; `XCB_CURRENT_TIME` when the window is gone.
    xcb_timestamp_t serverTime();

    /// Whether this connection made the window.
    bool isOwn(xcb_window_t window) const;

    /// A window for another client to put properties on, whose changes this connection is told of.
    xcb_window_t createWindow();
    void destroyWindow(xcb_window_t window);

    /// Gives up a window in whose property another client's answer was awaited.
    void abandonWindow(xcb_window_t window, xcb_atom_t property);

private:
    xcb_window_t createWindow(uint32_t events);

    xcb_connection_t *m_connection;
    uint8_t m_ownerEvent = 0; ///< 0 without XFixes.
    xcb_window_t m_window = XCB_WINDOW_NONE;
    std::deque<Event> m_held; ///< Arrived while the time was asked for.
    AbandonedTransfers m_abandoned;
    QHash<QByteArray, xcb_atom_t> m_atoms; ///< Of the names that the program asked for.
};

} // namespace Kestrune
