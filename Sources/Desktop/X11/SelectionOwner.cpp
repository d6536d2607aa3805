#include "SelectionOwner.h"

#include <algorithm>
#include <utility>

namespace Kestrune {

namespace {

constexpr uint32_t kMostPairs = 64; // Of a request for several targets.

} // namespace

void SelectionOwner::offer(const QList<PasteboardTypes::Form> &forms)
{
    m_forms.clear();
    for (const auto &form : forms)
        m_forms.push_back({m_x.atom(form.target), m_x.atom(form.type), form});
    takeSelection();
}

void SelectionOwner::offerAgain()
{
    if (!m_forms.empty())
        takeSelection();
}

std::vector<xcb_atom_t> SelectionOwner::kept() const
{
    std::vector<xcb_atom_t> targets;
    bool isMade = false;
    for (const Form &form : m_forms) {
        if (form.content.make && std::exchange(isMade, true))
            continue;
        targets.push_back(form.target);
    }
    return targets;
}

void SelectionOwner::takeSelection()
{
    m_since = m_x.serverTime();
    m_taken = xcb_set_selection_owner(m_x.get(), m_x.window(), m_selection, m_since).sequence;
    if (m_x.ownerOf(m_selection) != m_x.window())
        m_forms.clear(); // Another program was quicker.
}

void SelectionOwner::handle(const xcb_generic_event_t &event)
{
    switch (event.response_type) {
    case XCB_SELECTION_REQUEST:
        answer(reinterpret_cast<const xcb_selection_request_event_t &>(event));
        break;
    case XCB_SELECTION_CLEAR: // Unless it tells of a loss before the selection was taken again.
        if (!SelectionConnection::precedes(SelectionConnection::sequenceOf(event), m_taken))
            m_forms = {};
        break;
    default:
        m_transfers.handle(event);
        break;
    }
}

void SelectionOwner::answer(const xcb_selection_request_event_t &request)
{
    // Programs of old name no property and mean the one called like the target.
    const xcb_atom_t property = request.property != XCB_ATOM_NONE ? request.property : request.target;
    bool given = false;
    if (isOurs(request)) {
        given = request.target == m_x.atom("MULTIPLE")
                    ? request.property != XCB_ATOM_NONE && giveMultiple(request.requestor, property)
                    : give(request.requestor, request.target, property);
    }
    // An event on the wire is longer than this kind's structure.
    union {
        xcb_selection_notify_event_t notify;
        char wire[32];
    } event{};
    event.notify.response_type = XCB_SELECTION_NOTIFY;
    event.notify.time = request.time;
    event.notify.requestor = request.requestor;
    event.notify.selection = request.selection;
    event.notify.target = request.target;
    event.notify.property = given ? property : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    xcb_send_event(m_x.get(), false, request.requestor, XCB_EVENT_MASK_NO_EVENT, event.wire);
}

bool SelectionOwner::isOurs(const xcb_selection_request_event_t &request) const
{
    // The window of the owner never asks itself; whoever names it as the reader writes over its properties.
    return request.selection == m_selection && request.owner == m_x.window() &&
           request.requestor != m_x.window() && !m_forms.empty() &&
           (request.time == XCB_CURRENT_TIME || !SelectionConnection::precedes(request.time, m_since));
}

bool SelectionOwner::give(xcb_window_t reader, xcb_atom_t target, xcb_atom_t property)
{
    if (target == m_x.atom("TARGETS")) {
        giveTargets(reader, property);
        return true;
    }
    if (target == m_x.atom("TIMESTAMP")) {
        xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, reader, property, XCB_ATOM_INTEGER, 32, 1,
                            &m_since);
        return true;
    }
    if (target == m_x.atom("SAVE_TARGETS")) { // Told to be known; there is nothing to do.
        xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, reader, property, m_x.atom("NULL"), 32, 0,
                            nullptr);
        return true;
    }
    const auto form = std::ranges::find(m_forms, target, &Form::target);
    return form != m_forms.end() && giveForm(*form, reader, property);
}

bool SelectionOwner::giveForm(Form &form, xcb_window_t reader, xcb_atom_t property)
{
    if (!form.content.prepare())
        return false;
    const QByteArray &data = form.content.data;
    if (data.size() > IncrementalTransfers::kPiece)
        return m_transfers.start(reader, property, form.type, data);
    xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, reader, property, form.type, 8,
                        static_cast<uint32_t>(data.size()), data.constData());
    return true;
}

void SelectionOwner::giveTargets(xcb_window_t reader, xcb_atom_t property)
{
    std::vector<xcb_atom_t> targets{m_x.atom("TARGETS"), m_x.atom("TIMESTAMP"), m_x.atom("MULTIPLE"),
                                    m_x.atom("SAVE_TARGETS")};
    for (const Form &form : m_forms)
        targets.push_back(form.target);
    xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, reader, property, XCB_ATOM_ATOM, 32,
                        static_cast<uint32_t>(targets.size()), targets.data());
}

bool SelectionOwner::giveMultiple(xcb_window_t reader, xcb_atom_t property)
{
    const auto cookie =
        xcb_get_property(m_x.get(), false, reader, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 2 * kMostPairs);
    const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_x.get(), cookie, nullptr));
    if (!reply || reply->format != 32 || reply->bytes_after != 0)
        return false;
    auto *pairs = static_cast<xcb_atom_t *>(xcb_get_property_value(reply.get()));
    for (uint32_t i = 0; i + 1 < reply->value_len; i += 2) {
        // What cannot be given is marked in the list that the reader wrote.
        if (pairs[i] == m_x.atom("MULTIPLE") || !give(reader, pairs[i], pairs[i + 1]))
            pairs[i] = XCB_ATOM_NONE;
    }
    xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, reader, property, reply->type, 32, reply->value_len,
                        pairs);
    return true;
}

} // namespace Kestrune
