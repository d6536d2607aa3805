#include "IncrementalTransfers.h"

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 10s;
constexpr size_t kMostTransfers = 256;

/// A window of the connection's own keeps the events that it was made with.
void selectEvents(SelectionConnection &x, xcb_window_t window, uint32_t events)
{
    if (x.isOwn(window))
        return;
    xcb_change_window_attributes(x.get(), window, XCB_CW_EVENT_MASK, &events);
}

} // namespace

bool IncrementalTransfers::start(xcb_window_t reader, xcb_atom_t property, xcb_atom_t type,
                                 const QByteArray &data)
{
    std::erase_if(m_transfers,
                  [&](const Transfer &old) { return old.reader == reader && old.property == property; });
    if (m_transfers.size() >= kMostTransfers)
        return false;
    selectEvents(m_x, reader, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const auto size = static_cast<uint32_t>(data.size());
    xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, reader, property, m_x.atom("INCR"), 32, 1, &size);
    m_transfers.push_back({reader, property, type, data, 0, Clock::now() + kPatience});
    return true;
}

void IncrementalTransfers::handle(const xcb_generic_event_t &event)
{
    switch (event.response_type) {
    case XCB_PROPERTY_NOTIFY: {
        const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        const auto found = std::ranges::find_if(m_transfers, [&](const Transfer &transfer) {
            return transfer.reader == change.window && transfer.property == change.atom;
        });
        if (change.state == XCB_PROPERTY_DELETE && found != m_transfers.end())
            writePiece(*found);
        break;
    }
    case XCB_DESTROY_NOTIFY:
        giveUp(reinterpret_cast<const xcb_destroy_notify_event_t &>(event).window);
        break;
    case 0: // An error: the reader was gone before its end could be watched.
        giveUp(reinterpret_cast<const xcb_value_error_t &>(event).bad_value);
        break;
    default:
        return;
    }
    removeFinished();
}

void IncrementalTransfers::writePiece(Transfer &transfer)
{
    // Nothing is left at last: an empty piece ends the transfer.
    const qsizetype size = std::min(kPiece, transfer.data.size() - transfer.sent);
    xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, transfer.reader, transfer.property, transfer.type,
                        8, static_cast<uint32_t>(size), transfer.data.constData() + transfer.sent);
    transfer.sent += size;
    transfer.deadline = Clock::now() + kPatience;
    transfer.finished = size == 0;
}

std::optional<IncrementalTransfers::Clock::time_point> IncrementalTransfers::deadline() const
{
    const auto first = std::ranges::min_element(m_transfers, {}, &Transfer::deadline);
    return first != m_transfers.end() ? std::optional(first->deadline) : std::nullopt;
}

void IncrementalTransfers::expire(Clock::time_point now)
{
    for (Transfer &transfer : m_transfers)
        transfer.finished = transfer.deadline <= now;
    removeFinished();
}

void IncrementalTransfers::giveUp(xcb_window_t reader)
{
    for (Transfer &transfer : m_transfers)
        transfer.finished = transfer.finished || transfer.reader == reader;
}

void IncrementalTransfers::removeFinished()
{
    std::vector<xcb_window_t> readers;
    for (const Transfer &transfer : m_transfers) {
        if (transfer.finished)
            readers.push_back(transfer.reader);
    }
    std::erase_if(m_transfers, [](const Transfer &transfer) { return transfer.finished; });
    for (const xcb_window_t reader : readers) { // Unless it waits for another answer.
        if (std::ranges::find(m_transfers, reader, &Transfer::reader) == m_transfers.end())
            selectEvents(m_x, reader, XCB_EVENT_MASK_NO_EVENT);
    }
}

} // namespace Kestrune
