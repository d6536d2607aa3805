#include "AbandonedTransfers.h"

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr size_t kMost = 8;
constexpr auto kAbandonedPatience = 15s;

} // namespace

void AbandonedTransfers::add(xcb_connection_t *x, xcb_window_t window, xcb_atom_t property)
{
    xcb_delete_property(x, window, property);
    m_transfers.push_back({window, Clock::now() + kAbandonedPatience});
    if (m_transfers.size() <= kMost)
        return;
    xcb_destroy_window(x, m_transfers.front().window);
    m_transfers.pop_front();
}

bool AbandonedTransfers::handle(xcb_connection_t *x, const xcb_generic_event_t &event)
{
    if (event.response_type != XCB_PROPERTY_NOTIFY)
        return false;
    const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    const auto found = std::ranges::find(m_transfers, change.window, &Transfer::window);
    if (found == m_transfers.end())
        return false;
    if (Clock::now() >= found->end) {
        const uint32_t events = XCB_EVENT_MASK_NO_EVENT;
        xcb_change_window_attributes(x, change.window, XCB_CW_EVENT_MASK, &events);
    } else if (change.state == XCB_PROPERTY_NEW_VALUE) {
        xcb_delete_property(x, change.window, change.atom); // Asks for the next piece, if there is one.
    }
    xcb_flush(x);
    return true;
}

} // namespace Kestrune
