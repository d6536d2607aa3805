#include "X11Desktop.h"

#include "Desktop/Screens/Log.h"
#include "X11Connection.h"

#include <QCoreApplication>

#include <algorithm>
#include <span>

#include <xcb/damage.h>

namespace Kestrune {

namespace {

bool isStackingProperty(xcb_atom_t atom)
{
    return atom == X11::atom("_NET_CLIENT_LIST_STACKING") || atom == X11::atom("_NET_ACTIVE_WINDOW") ||
           atom == X11::atom("_NET_CURRENT_DESKTOP");
}

/// The ancestor of `window` (or itself) that is a child of the root window.
std::optional<xcb_window_t> frameOf(xcb_window_t window)
{
    for (;;) {
        const X11::Reply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(X11::connection(), xcb_query_tree(X11::connection(), window), nullptr));
        if (!tree)
            return std::nullopt;
        if (tree->parent == tree->root)
            return window;
        window = tree->parent;
    }
}

} // namespace

X11Desktop::X11Desktop(QObject *parent)
    : QObject(parent)
    , m_compositorSelection(X11::atom("_NET_WM_CM_S0"))
{
    const auto *fixes = xcb_get_extension_data(X11::connection(), &xcb_xfixes_id);
    if (fixes && fixes->present) {
        m_selectionEvent = fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY;
        xcb_xfixes_select_selection_input(X11::connection(), X11::root(), m_compositorSelection,
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                              XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    const auto *damage = xcb_get_extension_data(X11::connection(), &xcb_damage_id);
    if (m_selectionEvent != 0 && damage && damage->present) {
        const auto version = xcb_damage_query_version(X11::connection(), 1, 1);
        xcb_discard_reply(X11::connection(), version.sequence);
        m_damaged = xcb_generate_id(X11::connection());
        xcb_xfixes_create_region(X11::connection(), m_damaged, 0, nullptr);
    }
    QCoreApplication::instance()->installNativeEventFilter(this);
    checkCompositor();
    qCInfo(windowsLog, "X11, %s a compositor, %s damage reports", m_hasCompositor ? "with" : "without",
           m_damaged == XCB_NONE ? "without" : "with");
}

X11Desktop::~X11Desktop()
{
    if (m_damaged != XCB_NONE)
        xcb_xfixes_destroy_region(X11::connection(), m_damaged);
}

void X11Desktop::reportDamage(xcb_window_t window, const QRect &pixels) const
{
    if (m_damaged == XCB_NONE)
        return;
    const xcb_rectangle_t rectangle{static_cast<int16_t>(pixels.x()), static_cast<int16_t>(pixels.y()),
                                    static_cast<uint16_t>(pixels.width()),
                                    static_cast<uint16_t>(pixels.height())};
    xcb_xfixes_set_region(X11::connection(), m_damaged, 1, &rectangle);
    xcb_damage_add(X11::connection(), window, m_damaged);
}

void X11Desktop::checkCompositor()
{
    const X11::Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        X11::connection(), xcb_get_selection_owner(X11::connection(), m_compositorSelection), nullptr));
    const bool now = reply && reply->owner != XCB_WINDOW_NONE;
    if (std::exchange(m_hasCompositor, now) == now)
        return;
    qCInfo(windowsLog, "a compositor %s", now ? "came" : "went");
    Q_EMIT compositorChanged();
}

bool X11Desktop::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const auto type = event->response_type;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (change->window == X11::root() && isStackingProperty(change->atom))
            Q_EMIT stackingChanged();
    } else if (m_selectionEvent != 0 && type == m_selectionEvent) {
        const auto *change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
        if (change->selection == m_compositorSelection)
            checkCompositor();
    }
    return false;
}

namespace {

/// The window that a property of the root window names.
xcb_window_t windowNamedBy(const char *name)
{
    return X11::listOf(X11::root(), name, XCB_ATOM_WINDOW).value(0, XCB_WINDOW_NONE);
}

/// As it calls itself; empty without one.
QByteArray windowManager()
{
    constexpr uint32_t most = 64;
    const xcb_window_t window = windowNamedBy("_NET_SUPPORTING_WM_CHECK");
    const auto cookie = xcb_get_property(X11::connection(), false, window, X11::atom("_NET_WM_NAME"),
                                         X11::atom("UTF8_STRING"), 0, most);
    const X11::Reply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(X11::connection(), cookie, nullptr));
    return reply ? QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                              xcb_get_property_value_length(reply.get()))
                 : QByteArray();
}

std::optional<xcb_window_t> topmostManagedFrame()
{
    const auto windows = X11Desktop::managedWindows();
    return windows.isEmpty() ? std::nullopt : frameOf(windows.constLast());
}

/// The root window's children from the bottom up.
std::span<const xcb_window_t> childrenOf(const xcb_query_tree_reply_t &tree)
{
    return {xcb_query_tree_children(&tree), static_cast<std::size_t>(xcb_query_tree_children_length(&tree))};
}

} // namespace

bool X11Desktop::givesKeyboard() { return !X11::isGuest() || windowManager() != "KWin"; }

bool X11Desktop::hasActiveWindow()
{
    // Mutter names a window of its own while one of Wayland is active. What is managed has a state.
    const xcb_window_t active = windowNamedBy("_NET_ACTIVE_WINDOW");
    return active != XCB_WINDOW_NONE && !X11::listOf(active, "WM_STATE", X11::atom("WM_STATE")).isEmpty();
}

QList<xcb_window_t> X11Desktop::managedWindows()
{
    const auto all = X11::listOf(X11::root(), "_NET_CLIENT_LIST_STACKING", XCB_ATOM_WINDOW);
    const xcb_window_t active = windowNamedBy("_NET_ACTIVE_WINDOW");
    // Xfce's does not list the only window that there is.
    return all.isEmpty() && active != XCB_WINDOW_NONE ? QList{active} : all;
}

std::optional<xcb_window_t> X11Desktop::managedFrameAbove(xcb_window_t window)
{
    const auto frame = topmostManagedFrame();
    const X11::Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(X11::connection(), xcb_query_tree(X11::connection(), X11::root()), nullptr));
    if (!frame || !tree)
        return std::nullopt;
    const auto stack = childrenOf(*tree);
    const auto self = std::ranges::find(stack, window);
    return std::find(self, stack.end(), *frame) == stack.end() ? std::nullopt : frame;
}

} // namespace Kestrune
