#include "X11Pointer.h"

#include "X11Connection.h"
#include "X11Coordinates.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <utility>

#include <xcb/xinput.h>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(pointerLog, "kestrune.pointer", QtWarningMsg)

constexpr uint32_t kPrimaryButton = 1;
constexpr QPointF kOutside(-1e6, -1e6); // No display is there.

/// Asks the server for raw presses, by buttons and fingers, from every device.
void selectRawPresses()
{
    struct
    {
        xcb_input_event_mask_t head;
        uint32_t mask;
    } selection{};
    selection.head.deviceid = XCB_INPUT_DEVICE_ALL_MASTER;
    selection.head.mask_len = 1;
    selection.mask = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_TOUCH_BEGIN;
    xcb_input_xi_select_events(X11::connection(), X11::root(), 1, &selection.head);
    xcb_flush(X11::connection());
}

} // namespace

X11Pointer::X11Pointer()
    : m_connection(xcb_connect(nullptr, nullptr))
    , m_isGuest(X11::isGuest())
    , m_away(m_isGuest)
{
    QCoreApplication::instance()->installNativeEventFilter(this);
    const auto *extension = xcb_get_extension_data(X11::connection(), &xcb_input_id);
    if (!extension || !extension->present) {
        qCInfo(pointerLog, "the server has no XInput: presses elsewhere are missed");
        return;
    }
    m_inputOpcode = extension->major_opcode;
    selectRawPresses();
}

X11Pointer::~X11Pointer() = default;

bool X11Pointer::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto &event = *static_cast<const xcb_generic_event_t *>(message);
    const bool crosses = isCrossing(event);
    const bool isOver = m_isGuest && isOverWindow(event);
    const bool drags = isDrag(event);
    const bool presses = isRawPress(event);
    if (presses)
        m_presses.press(query().location);
    if (crosses)
        cross(event);
    if (isOver) {
        m_away = m_dropped = false;
        m_drag.reset(); // It is over, told or not.
    }
    if (m_isGuest && drags)
        drag(reinterpret_cast<const xcb_client_message_event_t &>(event));
    if (crosses || isOver || drags || presses || isTouch(event)) {
        m_moves = true;
        Q_EMIT stirred();
    }
    return false;
}

bool X11Pointer::isInput(const xcb_generic_event_t &event, uint16_t type) const
{
    const auto &input = reinterpret_cast<const xcb_ge_generic_event_t &>(event);
    return event.response_type == XCB_GE_GENERIC && input.extension == m_inputOpcode &&
           input.event_type == type;
}

bool X11Pointer::isCrossing(const xcb_generic_event_t &event) const
{
    const int type = event.response_type;
    return type == XCB_ENTER_NOTIFY || type == XCB_LEAVE_NOTIFY || isInput(event, XCB_INPUT_ENTER) ||
           isInput(event, XCB_INPUT_LEAVE);
}

/// The pointer moved or was pressed over a window of this program, or holds it.
bool X11Pointer::isOverWindow(const xcb_generic_event_t &event) const
{
    return isInput(event, XCB_INPUT_MOTION) || isInput(event, XCB_INPUT_BUTTON_PRESS);
}

void X11Pointer::cross(const xcb_generic_event_t &event)
{
    const bool byInput = event.response_type == XCB_GE_GENERIC;
    const auto &core = reinterpret_cast<const xcb_enter_notify_event_t &>(event);
    const auto &input = reinterpret_cast<const xcb_input_enter_event_t &>(event);
    // A grab that begins or ends moves nothing, and a child is still within.
    const bool moved =
        byInput ? input.mode == XCB_INPUT_NOTIFY_MODE_NORMAL : core.mode == XCB_NOTIFY_MODE_NORMAL;
    const bool within = byInput ? input.detail == XCB_INPUT_NOTIFY_DETAIL_INFERIOR
                                : core.detail == XCB_NOTIFY_DETAIL_INFERIOR;
    const bool left = byInput ? input.event_type == XCB_INPUT_LEAVE : event.response_type == XCB_LEAVE_NOTIFY;
    if (m_isGuest && moved && !within && left)
        m_away = true;
}

bool X11Pointer::isDrag(const xcb_generic_event_t &event)
{
    static const std::array messages{X11::atom("XdndPosition"), X11::atom("XdndLeave"), X11::atom("XdndDrop"),
                                     X11::atom("XdndFinished")};
    const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(event);
    return (event.response_type & 0x7f) == XCB_CLIENT_MESSAGE &&
           std::ranges::find(messages, message.type) != messages.end();
}

/// A drag that another program began has the pointer for itself, and says where it is. One that began here
/// ends over another program's window, and the server may not hear of the button.
void X11Pointer::drag(const xcb_client_message_event_t &message)
{
    if (message.type == X11::atom("XdndPosition")) {
        const uint32_t place = message.data.data32[2];
        m_drag = X11::toPoints(static_cast<int>(place >> 16), static_cast<int>(place & 0xffff));
    } else if (message.type == X11::atom("XdndLeave") || message.type == X11::atom("XdndDrop")) {
        m_drag.reset();
    } else if (message.type == X11::atom("XdndFinished")) {
        m_away = m_dropped = true;
    }
}

bool X11Pointer::isTouch(const xcb_generic_event_t &event) const
{
    return isInput(event, XCB_INPUT_RAW_TOUCH_BEGIN) || isInput(event, XCB_INPUT_TOUCH_BEGIN);
}

bool X11Pointer::isRawPress(const xcb_generic_event_t &event) const
{
    return isInput(event, XCB_INPUT_RAW_BUTTON_PRESS) &&
           reinterpret_cast<const xcb_input_raw_button_press_event_t &>(event).detail == kPrimaryButton;
}

PointerSample X11Pointer::query() const
{
    const auto cookie = xcb_query_pointer(m_connection.get(), X11::root());
    const X11::Reply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection.get(), cookie, nullptr));
    if (!reply)
        return {};
    return {X11::toPoints(reply->root_x, reply->root_y), (reply->mask & XCB_BUTTON_MASK_1) != 0};
}

QPointF X11Pointer::location() { return query().location; }

PointerSample X11Pointer::observe() const
{
    const PointerSample now = query();
    if (m_drag) // Its press began elsewhere, which the first sample has to say.
        return {m_last.primaryDown ? *m_drag : kOutside, true};
    return m_away ? PointerSample{kOutside, now.primaryDown && !m_dropped} : now;
}

PointerSample X11Pointer::sample()
{
    const PointerSample now = observe();
    m_moves = std::exchange(m_last, now) != now;
    return m_presses.sample(now);
}

bool X11Pointer::isAtRest() const
{
    const bool mayLeaveUntold = m_isGuest && !m_away;
    return !m_moves && !m_last.primaryDown && !m_presses.isPending() && !mayLeaveUntold;
}

} // namespace Kestrune
