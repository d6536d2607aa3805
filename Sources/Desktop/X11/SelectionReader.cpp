#include "SelectionReader.h"

namespace Kestrune {

namespace {

constexpr uint32_t kPiece = 1 << 20; // Bytes of a property read at once.
constexpr auto kProperty = "KESTRUNE_SELECTION";

} // namespace

SelectionReader::SelectionReader(SelectionConnection &x, xcb_atom_t selection, const Question &question)
    : m_x(x)
    , m_question(question)
    , m_window(x.createWindow())
{
    const xcb_atom_t property = m_x.atom(kProperty);
    m_sequence =
        xcb_convert_selection(m_x.get(), m_window, selection, question.target, property, question.time)
            .sequence;
}

SelectionReader::~SelectionReader()
{
    if (m_ownerIsDone)
        m_x.destroyWindow(m_window);
    else
        m_x.abandonWindow(m_window, m_x.atom(kProperty));
}

void SelectionReader::handle(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_SELECTION_NOTIFY && m_state == State::Asked) {
        const auto &notify = reinterpret_cast<const xcb_selection_notify_event_t &>(event);
        if (notify.requestor != m_window || notify.target != m_question.target)
            return;
        m_patience.progress();
        m_ownerIsDone = true;
        if (notify.property == m_x.atom(kProperty))
            begin();
        else
            fail();
    } else if (type == XCB_PROPERTY_NOTIFY && m_state == State::Incremental) {
        const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        if (change.window == m_window && change.atom == m_x.atom(kProperty) &&
            change.state == XCB_PROPERTY_NEW_VALUE)
            readIncrement();
    }
}

void SelectionReader::ownerChanged(uint32_t sequence, bool gone)
{
    // The change came before the request, so the one who took over was asked, not the one who was meant.
    if (SelectionConnection::precedes(sequence, m_sequence)) {
        fail();
    } else if (gone && !m_patience.isHurried()) {
        m_ownerIsDone = true;
        fail();
    } else {
        m_patience.hurry();
    }
}

void SelectionReader::expire(Clock::time_point now)
{
    if (!isFinished() && now >= deadline())
        fail();
}

std::optional<SelectionReader::Answer> SelectionReader::take()
{
    if (m_state != State::Complete)
        return std::nullopt;
    m_answer.data.squeeze();
    return std::move(m_answer);
}

std::optional<SelectionReader::Value> SelectionReader::lookAtProperty() const
{
    const auto cookie =
        xcb_get_property(m_x.get(), false, m_window, m_x.atom(kProperty), XCB_GET_PROPERTY_TYPE_ANY, 0, 0);
    const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_x.get(), cookie, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE)
        return std::nullopt;
    return Value{reply->type, reply->format, reply->bytes_after};
}

void SelectionReader::begin()
{
    const auto value = lookAtProperty();
    if (value && value->type == m_x.atom("INCR"))
        beginIncrements();
    else if (value && readProperty(*value))
        m_state = State::Complete;
    else
        fail();
}

void SelectionReader::beginIncrements()
{
    m_ownerIsDone = false;
    const xcb_atom_t property = m_x.atom(kProperty);
    const auto cookie =
        xcb_get_property(m_x.get(), false, m_window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 1);
    const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_x.get(), cookie, nullptr));
    const bool announced = reply && reply->format == 32 && reply->value_len == 1;
    if (announced && *static_cast<const uint32_t *>(xcb_get_property_value(reply.get())) > m_question.limit) {
        fail();
        return;
    }
    m_state = State::Incremental;
    xcb_delete_property(m_x.get(), m_window, property);
}

void SelectionReader::readIncrement()
{
    const auto value = lookAtProperty();
    if (!value)
        return; // Read already with the change before this one.
    if (value->size == 0) {
        m_ownerIsDone = true;
        m_state = State::Complete;
        if (m_answer.data.isEmpty())
            m_answer.type = value->type;
        return;
    }
    if (readProperty(*value))
        m_patience.progress();
    else
        fail();
}

bool SelectionReader::readProperty(const Value &value)
{
    if (value.format != m_question.format || m_answer.data.size() + value.size > m_question.limit)
        return false;
    m_answer.type = value.type;
    if (m_state == State::Asked)
        m_answer.data.reserve(value.size);
    for (uint32_t offset = 0;; offset += kPiece / 4) {
        // The server deletes the property with its last piece, which asks the owner for the next increment.
        const auto cookie =
            xcb_get_property(m_x.get(), true, m_window, m_x.atom(kProperty), value.type, offset, kPiece / 4);
        const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_x.get(), cookie, nullptr));
        if (!reply || reply->type != value.type || reply->format != value.format)
            return false;
        m_answer.data.append(static_cast<const char *>(xcb_get_property_value(reply.get())),
                             xcb_get_property_value_length(reply.get()));
        if (m_answer.data.size() > m_question.limit)
            return false;
        if (reply->bytes_after == 0)
            return true;
    }
}

} // namespace Kestrune
