#include "X11Frames.h"

#include "Desktop/Screens/Log.h"
#include "X11Connection.h"

#include <QCoreApplication>
#include <QWindow>

#include <xcb/present.h>

namespace Kestrune {

X11Frames::X11Frames(QObject *parent)
    : QObject(parent)
{
    const auto *present =
        X11::isGuest() ? nullptr : xcb_get_extension_data(X11::connection(), &xcb_present_id);
    if (!present || !present->present)
        return;
    const auto version = xcb_present_query_version(X11::connection(), 1, 0);
    xcb_discard_reply(X11::connection(), version.sequence);
    m_opcode = present->major_opcode;
    QCoreApplication::instance()->installNativeEventFilter(this);
    qCInfo(windowsLog, "the X server tells of its displays' frames");
}

X11Frames::Waiting &X11Frames::listenTo(QWindow &window)
{
    const auto id = static_cast<xcb_window_t>(window.winId());
    const auto known = m_waiting.find(id);
    if (known != m_waiting.end())
        return *known;
    xcb_present_select_input(X11::connection(), xcb_generate_id(X11::connection()), id,
                             XCB_PRESENT_EVENT_MASK_COMPLETE_NOTIFY);
    connect(&window, &QObject::destroyed, this, [this, id] { m_waiting.remove(id); });
    return m_waiting[id];
}

bool X11Frames::await(QWindow &window, std::function<void()> then)
{
    if (m_opcode == 0)
        return false;
    constexpr uint64_t any = 0; // The past, of which every frame is a multiple: so the next one.
    constexpr uint64_t every = 1;
    Waiting &waiting = listenTo(window);
    waiting = {++m_serial, std::move(then)};
    xcb_present_notify_msc(X11::connection(), static_cast<xcb_window_t>(window.winId()), waiting.serial, any,
                           every, 0);
    xcb_flush(X11::connection());
    return true;
}

bool X11Frames::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto *generic = static_cast<const xcb_ge_generic_event_t *>(message);
    if (generic->response_type != XCB_GE_GENERIC || generic->extension != m_opcode ||
        generic->event_type != XCB_PRESENT_COMPLETE_NOTIFY)
        return false;
    const auto *frame = reinterpret_cast<const xcb_present_complete_notify_event_t *>(generic);
    const auto waiting = m_waiting.find(frame->window);
    if (waiting != m_waiting.end() && waiting->serial == frame->serial && waiting->then)
        std::exchange(waiting->then, nullptr)();
    return true;
}

} // namespace Kestrune
