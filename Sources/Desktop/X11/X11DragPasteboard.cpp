#include "X11DragPasteboard.h"

#include "Desktop/Mime/UriLists.h"
#include "X11Connection.h"

#include <QCoreApplication>

#include <algorithm>
#include <span>

#include <xcb/xfixes.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr uint32_t kMostDraggedTypes = 1024;
constexpr uint32_t kMostWords = 4 * 1024 * 1024; // 16 MB of addresses.
constexpr uint32_t kMoreTypes = 1;               // Bit in the entering message: see the source's list.

constexpr auto kUriList = "text/uri-list";
constexpr auto kSelection = "XdndSelection";
constexpr auto kDragProperty = "_KESTRUNE_DRAGGED_FILES";

X11::Reply<xcb_get_property_reply_t> property(xcb_window_t window, xcb_atom_t name, bool take,
                                              uint32_t mostWords)
{
    const auto cookie = xcb_get_property(X11::connection(), take, window, name, XCB_ATOM_ANY, 0, mostWords);
    return X11::Reply<xcb_get_property_reply_t>(xcb_get_property_reply(X11::connection(), cookie, nullptr));
}

} // namespace

X11DragPasteboard::X11DragPasteboard()
{
    const auto *fixes = xcb_get_extension_data(X11::connection(), &xcb_xfixes_id);
    if (fixes && fixes->present) {
        m_selectionEvent = fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(X11::connection(), X11::root(), X11::atom(kSelection),
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    m_deadline.setSingleShot(true);
    m_deadline.callOnTimeout([this] { finish({}); });
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11DragPasteboard::~X11DragPasteboard() { finish({}); }

QFuture<QList<QUrl>> X11DragPasteboard::fileUrls()
{
    return m_answer ? m_answer->future() : answered(QList<QUrl>());
}

bool X11DragPasteboard::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int type = event->response_type & 0x7f;
    if (type == XCB_CLIENT_MESSAGE)
        handleMessage(*reinterpret_cast<const xcb_client_message_event_t *>(event));
    else if (type == XCB_SELECTION_NOTIFY)
        return handleAnswer(*reinterpret_cast<const xcb_selection_notify_event_t *>(event));
    else if (event->response_type == XCB_PROPERTY_NOTIFY && m_incremental)
        handleProperty(*reinterpret_cast<const xcb_property_notify_event_t *>(event));
    else if (m_selectionEvent && event->response_type == m_selectionEvent &&
             reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event)->selection ==
                 X11::atom(kSelection))
        sourceDied();
    return false;
}

void X11DragPasteboard::handleMessage(const xcb_client_message_event_t &message)
{
    if (message.format != 32)
        return;
    if (message.type == X11::atom("XdndEnter")) {
        enter(message);
        return;
    }
    const auto &data = message.data.data32;
    if (!m_over || data[0] != m_source || message.window != m_target)
        return;
    if (message.type == X11::atom("XdndPosition"))
        ask(data[3]);
    else if (message.type == X11::atom("XdndLeave"))
        leave();
    else if (message.type == X11::atom("XdndDrop"))
        m_over = false;
}

void X11DragPasteboard::enter(const xcb_client_message_event_t &message)
{
    leave();
    m_target = message.window;
    m_source = message.data.data32[0];
    m_over = true;
    m_asked = false;
    m_answered = false;
    m_incremental = false;
    m_list.clear();
    m_answer.emplace();
    if (!offersFiles(message))
        finish({});
}

bool X11DragPasteboard::offersFiles(const xcb_client_message_event_t &message) const
{
    const xcb_atom_t wanted = X11::atom(kUriList);
    const std::span data(message.data.data32);
    if (!(data[1] & kMoreTypes))
        return std::ranges::count(data.subspan(2), wanted) > 0;
    const auto list = property(m_source, X11::atom("XdndTypeList"), false, kMostDraggedTypes);
    if (!list || list->format != 32)
        return false;
    const std::span types(static_cast<const xcb_atom_t *>(xcb_get_property_value(list.get())),
                          list->value_len);
    return std::ranges::count(types, wanted) > 0;
}

void X11DragPasteboard::ask(xcb_timestamp_t time)
{
    if (m_answered || std::exchange(m_asked, true))
        return;
    // For the window that the drag is over and at the time it said: some sources tell by these which of
    // their drags is meant.
    xcb_convert_selection(X11::connection(), m_target, X11::atom(kSelection), X11::atom(kUriList),
                          X11::atom(kDragProperty), time);
    xcb_flush(X11::connection());
    m_patience = {};
    waitOn();
}

void X11DragPasteboard::waitOn()
{
    const auto left = m_patience.deadline() - ReadingPatience::Clock::now();
    m_deadline.start(std::max(0ms, std::chrono::ceil<std::chrono::milliseconds>(left)));
}

bool X11DragPasteboard::handleAnswer(const xcb_selection_notify_event_t &answer)
{
    if (answer.selection != X11::atom(kSelection) || answer.requestor != m_target ||
        answer.target != X11::atom(kUriList) || !m_asked)
        return false;
    if (answer.property == X11::atom(kDragProperty))
        takeProperty();
    else if (answer.property == XCB_ATOM_NONE)
        finish({});
    else
        return false;
    return true;
}

void X11DragPasteboard::takeProperty()
{
    const auto part = property(m_target, X11::atom(kDragProperty), true, kMostWords);
    if (!part) {
        finish({});
        return;
    }
    if (!m_incremental && part->type == X11::atom("INCR")) {
        m_incremental = true;
        return;
    }
    const QByteArray bytes(static_cast<const char *>(xcb_get_property_value(part.get())),
                           xcb_get_property_value_length(part.get()));
    m_list += bytes;
    const bool whole = !m_incremental || bytes.isEmpty();
    if (part->bytes_after != 0 || m_list.size() > qsizetype{4} * kMostWords) {
        finish({});
    } else if (whole) {
        finish(UriLists::localFiles(m_list, kUriList));
    } else {
        m_patience.progress();
        waitOn();
    }
}

void X11DragPasteboard::handleProperty(const xcb_property_notify_event_t &change)
{
    if (change.window == m_target && change.atom == X11::atom(kDragProperty) &&
        change.state == XCB_PROPERTY_NEW_VALUE)
        takeProperty();
}

void X11DragPasteboard::sourceDied()
{
    if (!m_over)
        return;
    // The views have to hear that the drag is gone; its source cannot tell them any more.
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_target;
    message.type = X11::atom("XdndLeave");
    message.data.data32[0] = m_source;
    xcb_send_event(X11::connection(), false, m_target, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(X11::connection());
}

void X11DragPasteboard::leave()
{
    finish({});
    m_over = false;
    m_files.clear();
}

void X11DragPasteboard::finish(const QList<QUrl> &files)
{
    if (std::exchange(m_answered, true))
        return;
    m_deadline.stop();
    m_incremental = false;
    m_list.clear();
    m_files = files;
    m_answer->give(files);
}

} // namespace Kestrune
