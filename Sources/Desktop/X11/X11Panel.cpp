#include "X11Panel.h"

#include "Desktop/Screens/Points.h"
#include "X11Connection.h"
#include "X11Desktop.h"

#include <QRegion>
#include <QScreen>

#include <array>
#include <cmath>
#include <vector>

#include <xcb/shape.h>

namespace Kestrune {

namespace {

constexpr double kShadow = 48; // points around the outline that the notch's shadow stays within

/// The pixels whose centres lie in `rect`.
QRect pixelsWithin(const QRectF &rect)
{
    const auto first = [](double edge) { return static_cast<int>(std::ceil(edge - 0.5)); };
    return {QPoint(first(rect.left()), first(rect.top())),
            QPoint(first(rect.right()) - 1, first(rect.bottom()) - 1)};
}

std::vector<xcb_rectangle_t> toRectangles(const QRegion &region)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect &rect : region) {
        rectangles.push_back({static_cast<int16_t>(rect.x()), static_cast<int16_t>(rect.y()),
                              static_cast<uint16_t>(rect.width()), static_cast<uint16_t>(rect.height())});
    }
    return rectangles;
}

void setShape(xcb_window_t window, xcb_shape_kind_t kind, const QRegion &region)
{
    const auto rectangles = toRectangles(region);
    xcb_shape_rectangles(X11::connection(), XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_UNSORTED, window, 0, 0,
                         static_cast<uint32_t>(rectangles.size()), rectangles.data());
}

xcb_window_t focusWindow()
{
    const X11::Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(X11::connection(), xcb_get_input_focus(X11::connection()), nullptr));
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

/// False when `window` is gone or hidden.
bool focus(xcb_window_t window)
{
    const auto cookie = xcb_set_input_focus_checked(X11::connection(), XCB_INPUT_FOCUS_POINTER_ROOT, window,
                                                    XCB_CURRENT_TIME);
    const X11::Reply<xcb_generic_error_t> error(xcb_request_check(X11::connection(), cookie));
    return !error;
}

xcb_window_t createHitWindow()
{
    const xcb_window_t window = xcb_generate_id(X11::connection());
    const std::array<uint32_t, 2> values{true, XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                                   XCB_EVENT_MASK_ENTER_WINDOW | XCB_EVENT_MASK_LEAVE_WINDOW};
    xcb_create_window(X11::connection(), XCB_COPY_FROM_PARENT, window, X11::root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    return window;
}

/// Qt draws a window 5 ms after it was asked to, which is most of a frame of a quick display. It reads
/// another wait from the environment, once, as the first window asks; programs that are started do not
/// inherit it.
void drawAtOnce(QWindow &window)
{
    constexpr auto kWait = "QT_QPA_UPDATE_IDLE_TIME";
    static bool read = qEnvironmentVariableIsSet(kWait);
    if (std::exchange(read, true))
        return;
    qputenv(kWait, "0");
    window.requestUpdate();
    qunsetenv(kWait);
}

void stack(xcb_window_t window, xcb_window_t sibling, xcb_stack_mode_t mode)
{
    const std::array<uint32_t, 2> values{sibling, static_cast<uint32_t>(mode)};
    // The sibling may be gone by now, which is no error worth a word.
    const auto cookie = xcb_configure_window_checked(
        X11::connection(), window, XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values.data());
    xcb_discard_reply(X11::connection(), cookie.sequence);
}

} // namespace

X11Panel::X11Panel(std::unique_ptr<QWindow> window, const X11Desktop &desktop, const QRectF &frame)
    : m_desktop(desktop)
    , m_window(std::move(window))
    , m_hasInputShapes(X11::hasInputShapes())
    , m_hitWindow(createHitWindow())
{
    m_window->setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                       Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
    setFrame(frame);
    m_window->create();
    drawAtOnce(*m_window);
    announceType();
    keepMiddle();
    connect(&m_desktop, &X11Desktop::compositorChanged, this, [this] {
        applyOutline();
        placeHitWindow();
    });
    connect(&m_desktop, &X11Desktop::stackingChanged, this, &X11Panel::restack);
}

X11Panel::~X11Panel() { xcb_destroy_window(X11::connection(), m_hitWindow); }

/// What is shown stays in the middle of the upper edge when the window's width changes.
void X11Panel::keepMiddle() const
{
    constexpr uint32_t gravity = XCB_GRAVITY_NORTH;
    xcb_change_window_attributes(X11::connection(), id(), XCB_CW_BIT_GRAVITY, &gravity);
}

void X11Panel::announceType() const
{
    // Compositors draw neither shadows around docks nor effects when they appear. Those of Wayland that give
    // a guest's dock the keyboard give a utility none.
    const std::array types{X11::atom("_NET_WM_WINDOW_TYPE_DOCK"), X11::atom("_NET_WM_WINDOW_TYPE_UTILITY")};
    xcb_change_property(X11::connection(), XCB_PROP_MODE_REPLACE, id(), X11::atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, X11::isGuest() ? 2 : 1, types.data());
}

void X11Panel::setFrame(const QRectF &frame)
{
    m_frame = frame;
    place(wantedFrame());
    if (m_window->handle()) {
        applyHitArea();
        applyOutline();
    }
}

QRectF X11Panel::wantedFrame() const
{
    if (m_hasInputShapes || m_hitArea.isEmpty())
        return m_frame;
    // Only the open notch has a shadow, and only its hit area is higher than that is wide.
    const double shadow = m_hitArea.height() > kShadow ? kShadow : 0;
    return m_hitArea.adjusted(-shadow, -shadow, shadow, 0) & m_frame;
}

void X11Panel::place(const QRectF &frame)
{
    m_placed = frame;
    const QRectF qtFrame = Points::toQt(frame);
    m_window->setScreen(Points::screenAt(qtFrame));
    m_window->setGeometry(QRect(QPoint(qRound(qtFrame.x()), qRound(qtFrame.y())), qtFrame.size().toSize()));
}

/// To what is wanted, once the notch that is drawn is within that.
void X11Panel::shrink()
{
    const QRectF wanted = wantedFrame();
    const QRectF drawn = m_outline.boundingRect().translated(m_frame.left(), 0);
    if (wanted == m_placed || drawn.width() > wanted.width() + 1 || drawn.height() > wanted.height() + 1)
        return;
    place(wanted);
    applyHitArea();
}

void X11Panel::orderFront()
{
    m_window->show();
    applyOutline();
    placeHitWindow();
    restack();
}

void X11Panel::orderOut()
{
    resignKey();
    m_window->hide();
    xcb_unmap_window(X11::connection(), m_hitWindow);
    xcb_flush(X11::connection());
}

QRect X11Panel::pixelsInPanel(const QRectF &points) const
{
    const QRectF local = Points::toQt(points).translated(-m_window->position());
    const double scale = m_window->devicePixelRatio();
    return pixelsWithin(QRectF(local.topLeft() * scale, local.size() * scale));
}

void X11Panel::setHitArea(const QRectF &area)
{
    m_hitArea = area;
    if (const QRectF wanted = wantedFrame(); !m_placed.contains(wanted))
        place(wanted);
    applyHitArea();
}

void X11Panel::applyHitArea()
{
    setShape(id(), XCB_SHAPE_SK_INPUT, pixelsInPanel(m_hitArea));
    placeHitWindow();
    xcb_flush(X11::connection());
}

void X11Panel::placeHitWindow()
{
    auto *connection = X11::connection();
    if (m_desktop.hasCompositor() || !m_window->isVisible() || m_hitArea.isEmpty()) {
        xcb_unmap_window(connection, m_hitWindow);
        return;
    }
    const QPointF origin = Points::geometryOf(*m_window->screen()).topLeft();
    const QPointF offset = (QPointF(m_window->position()) - origin) * m_window->devicePixelRatio();
    const QRect place = pixelsInPanel(m_hitArea).translated((origin + offset).toPoint());
    const std::array<uint32_t, 6> values{static_cast<uint32_t>(place.x()),
                                         static_cast<uint32_t>(place.y()),
                                         static_cast<uint32_t>(place.width()),
                                         static_cast<uint32_t>(place.height()),
                                         id(),
                                         XCB_STACK_MODE_BELOW};
    xcb_configure_window(connection, m_hitWindow,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_SIBLING |
                             XCB_CONFIG_WINDOW_STACK_MODE,
                         values.data());
    xcb_map_window(connection, m_hitWindow);
}

void X11Panel::setOutline(const QPainterPath &outline)
{
    m_outline = outline;
    shrink();
    if (!m_desktop.hasCompositor())
        applyOutline();
}

void X11Panel::announceFrame()
{
    if (!m_desktop.hasCompositor() || m_outline.isEmpty())
        return;
    const QRectF now = m_outline.boundingRect()
                           .translated(m_frame.left() - m_placed.left(), 0)
                           .adjusted(-kShadow, -kShadow, kShadow, kShadow);
    const QRectF area = (now | std::exchange(m_drawn, now)) & QRectF({}, QSizeF(m_window->size()));
    const double scale = m_window->devicePixelRatio();
    m_desktop.reportDamage(id(), QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect());
}

void X11Panel::applyOutline()
{
    if (m_desktop.hasCompositor()) {
        if (std::exchange(m_shaped, false))
            xcb_shape_mask(X11::connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, id(), 0, 0,
                           XCB_PIXMAP_NONE);
    } else {
        const double scale = m_window->devicePixelRatio();
        const auto polygon = m_outline.toFillPolygon(QTransform::fromScale(scale, scale)).toPolygon();
        setShape(id(), XCB_SHAPE_SK_BOUNDING, QRegion(polygon));
        m_shaped = true;
    }
    xcb_flush(X11::connection());
}

void X11Panel::makeKey()
{
    const xcb_window_t current = focusWindow();
    if (current == id() || !X11Desktop::givesKeyboard())
        return;
    const bool isOfX11 = !X11::isGuest() || X11Desktop::hasActiveWindow();
    m_focusBefore = isOfX11 ? current : xcb_window_t{XCB_WINDOW_NONE};
    focus(id());
}

void X11Panel::resignKey()
{
    const xcb_window_t before = std::exchange(m_focusBefore, XCB_WINDOW_NONE);
    if (focusWindow() != id())
        return;
    if (before == XCB_WINDOW_NONE && X11::isGuest() && m_window->isVisible()) {
        // Mutter gives the keyboard back to a window of Wayland once the one that has it goes.
        m_window->hide();
        orderFront();
        return;
    }
    if (before == XCB_WINDOW_NONE || !focus(before))
        focus(XCB_INPUT_FOCUS_POINTER_ROOT);
}

void X11Panel::restack()
{
    if (!m_window->isVisible())
        return;
    // Just above the managed windows, not on top of everything: a screen lock stays above the notch. And
    // only when it must move: some window managers put a window back under others while it moves.
    if (const auto frame = X11Desktop::managedFrameAbove(id())) {
        stack(id(), *frame, XCB_STACK_MODE_ABOVE);
        placeHitWindow();
    }
    xcb_flush(X11::connection());
}

} // namespace Kestrune
