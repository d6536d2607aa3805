#include "X11TopPanels.h"

#include "Desktop/Screens/Points.h"
#include "X11Connection.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

namespace Kestrune {

namespace {

using namespace std::chrono_literals;
using Numbers = QList<uint32_t>;

constexpr auto kPanelsSettling = 50ms;
constexpr qsizetype kMostClients = 1024;
constexpr int kMostOfADisplay = 3; // What keeps more than a third of its height is no panel.

QByteArray workAreasOfMonitors()
{
    const auto desktop = X11::listOf(X11::root(), "_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL).value(0);
    return "_GTK_WORKAREAS_D" + QByteArray::number(desktop);
}

/// What panels keep of the top of the root window, and from where to where, in pixels.
struct Strip
{
    int height;
    int left;
    int right;
};

/// What stands in the property of those windows; asked of the server at once.
std::vector<Numbers> propertyOf(const QList<xcb_window_t> &windows, const char *name, uint32_t length)
{
    auto *x = X11::connection();
    std::vector<xcb_get_property_cookie_t> cookies;
    for (const xcb_window_t window : windows)
        cookies.push_back(xcb_get_property(x, false, window, X11::atom(name), XCB_ATOM_CARDINAL, 0, length));
    std::vector<Numbers> found;
    for (const auto &cookie : cookies) {
        const X11::Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(x, cookie, nullptr));
        const bool whole = reply && reply->format == 32 && reply->value_len == length;
        const auto *values =
            whole ? static_cast<const uint32_t *>(xcb_get_property_value(reply.get())) : nullptr;
        found.push_back(whole ? Numbers(values, values + length) : Numbers());
    }
    return found;
}

std::vector<Strip> strips()
{
    QList<xcb_window_t> windows = X11::listOf(X11::root(), "_NET_CLIENT_LIST", XCB_ATOM_WINDOW);
    windows.resize(std::min(windows.size(), kMostClients));
    constexpr int top = 2;
    constexpr int topStart = 8;
    constexpr int topEnd = 9;
    constexpr int everywhere = 1 << 16;
    const auto partial = propertyOf(windows, "_NET_WM_STRUT_PARTIAL", 12);
    const auto whole = propertyOf(windows, "_NET_WM_STRUT", 4);
    std::vector<Strip> found;
    for (std::size_t i = 0; i < partial.size(); ++i) {
        if (!partial[i].isEmpty())
            found.push_back({int(partial[i][top]), int(partial[i][topStart]), int(partial[i][topEnd])});
        else if (!whole[i].isEmpty())
            found.push_back({int(whole[i][top]), 0, everywhere});
    }
    return found;
}

/// The rectangles that a property of the root window lists.
std::vector<QRect> rectangles(const QByteArray &property)
{
    const Numbers numbers = X11::listOf(X11::root(), property, XCB_ATOM_CARDINAL);
    std::vector<QRect> found;
    for (qsizetype i = 0; i + 3 < numbers.size(); i += 4)
        found.emplace_back(int(numbers[i]), int(numbers[i + 1]), int(numbers[i + 2]), int(numbers[i + 3]));
    return found;
}

/// The top edge of the area that lies on the display for the most part; the display's own without one.
int topOf(const std::vector<QRect> &areas, const QRect &display)
{
    const auto shared = [&](const QRect &area) {
        const QRect common = area & display;
        return common.width() * common.height();
    };
    const auto best = std::ranges::max_element(areas, {}, shared);
    return best == areas.end() || shared(*best) == 0 ? display.top() : best->top();
}

/// Where the display's area for windows begins at the middle of its upper edge.
int topBeside(const std::vector<Strip> &panels, const QRect &display)
{
    int top = display.top();
    for (const Strip &panel : panels) {
        if (panel.left <= display.center().x() && display.center().x() <= panel.right)
            top = std::max(top, panel.height);
    }
    return top;
}

} // namespace

X11TopPanels::X11TopPanels(QObject *parent)
    : QObject(parent)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(kPanelsSettling);
    m_settle.callOnTimeout(this, &X11TopPanels::read);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &X11TopPanels::readSoon);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &X11TopPanels::readSoon);
    QCoreApplication::instance()->installNativeEventFilter(this);
    read();
}

bool X11TopPanels::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if (event->response_type != XCB_PROPERTY_NOTIFY)
        return false;
    // Of the windows, those near the top are watched anyway, and panels are.
    if (m_telling.contains(reinterpret_cast<const xcb_property_notify_event_t *>(event)->atom))
        readSoon();
    return false;
}

void X11TopPanels::read()
{
    const QByteArray workAreas = workAreasOfMonitors();
    m_telling = {X11::atom("_NET_CLIENT_LIST"),     X11::atom("_NET_WORKAREA"),
                 X11::atom("_NET_CURRENT_DESKTOP"), X11::atom("_NET_WM_STRUT_PARTIAL"),
                 X11::atom("_NET_WM_STRUT"),        X11::atom(workAreas)};
    const auto ofMonitors = rectangles(workAreas);
    const auto panels = ofMonitors.empty() ? strips() : std::vector<Strip>();
    const auto screens = QGuiApplication::screens();
    const bool byWorkArea = X11::isGuest() && screens.size() == 1 && panels.empty();
    const auto areas = ofMonitors.empty() && byWorkArea ? rectangles("_NET_WORKAREA") : ofMonitors;
    QHash<QString, double> heights;
    for (const QScreen *screen : screens) {
        const QRect place = Points::pixelsOf(*screen);
        const int height = std::max(topOf(areas, place), topBeside(panels, place)) - place.top();
        if (height > 0 && height < place.height() / kMostOfADisplay)
            heights.insert(screen->name(), height / screen->devicePixelRatio());
    }
    if (std::exchange(m_heights, heights) != heights)
        Q_EMIT changed(heights);
}

} // namespace Kestrune
