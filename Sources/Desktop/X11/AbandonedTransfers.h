#pragma once

#include <chrono>
#include <deque>

#include <xcb/xcb.h>

namespace Kestrune {

/// Answers of other programs that nobody here waits for any more. They are still taken and thrown away for a
/// while: a program that hands out its content to one reader at a time would else be stuck for good, and
/// what the user copied there with it. Their windows go away only when several more answers have been
/// abandoned, since a program that writes to a missing window may end with an error.
class AbandonedTransfers
{
public:
    /// Abandons the answer in that property of a window, which belongs to this object from now on.
    void add(xcb_connection_t *x, xcb_window_t window, xcb_atom_t property);

    /// Whether the event was for one of them alone.
    bool handle(xcb_connection_t *x, const xcb_generic_event_t &event);

private:
    using Clock = std::chrono::steady_clock;

    struct Transfer
    {
        xcb_window_t window;
        Clock::time_point end; ///< Afterwards nothing more is taken.
    };

    std::deque<Transfer> m_transfers;
};

} // namespace Kestrune
