#pragma once

#include "Desktop/Mime/PasteboardTypes.h"
#include "IncrementalTransfers.h"

namespace Kestrune {

/// Content of this program on a selection, given to whoever asks until another program takes it over.
class SelectionOwner
{
public:
    SelectionOwner(SelectionConnection &x, xcb_atom_t selection)
        : m_x(x)
        , m_selection(selection)
        , m_transfers(x)
    {}

    /// Takes the selection for the content in these forms.
    void offer(const QList<PasteboardTypes::Form> &forms);

    /// Takes the selection with a new window where it was held when the old one went.
    void offerAgain();

    void handle(const xcb_generic_event_t &event);

    /// The targets in which another program should keep the content when this one ends; empty while the
    /// selection is another's. Of what has to be made there is but the first.
    std::vector<xcb_atom_t> kept() const;

    std::optional<IncrementalTransfers::Clock::time_point> deadline() const { return m_transfers.deadline(); }
    void expire(IncrementalTransfers::Clock::time_point now) { m_transfers.expire(now); }

private:
    struct Form
    {
        xcb_atom_t target;
        xcb_atom_t type;
        PasteboardTypes::Form content;
    };

    void takeSelection();
    void answer(const xcb_selection_request_event_t &request);
    bool isOurs(const xcb_selection_request_event_t &request) const;
    bool give(xcb_window_t reader, xcb_atom_t target, xcb_atom_t property);
    bool giveForm(Form &form, xcb_window_t reader, xcb_atom_t property);
    bool giveMultiple(xcb_window_t reader, xcb_atom_t property);
    void giveTargets(xcb_window_t reader, xcb_atom_t property);

    SelectionConnection &m_x;
    xcb_atom_t m_selection;
    IncrementalTransfers m_transfers;
    std::vector<Form> m_forms; ///< Empty while the selection is another's.
    xcb_timestamp_t m_since = XCB_CURRENT_TIME;
    uint32_t m_taken = 0; ///< Number of the request that took the selection.
};

} // namespace Kestrune
