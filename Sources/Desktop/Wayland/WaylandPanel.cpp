#include "WaylandPanel.h"

#include "Desktop/Screens/Log.h"
#include "Desktop/Screens/Points.h"
#include "WaylandPointer.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>

#include <LayerShellQt/Window>

namespace Kestrune {

using namespace std::chrono_literals;
using LayerShellQt::Window;

namespace {

constexpr auto kUnseen = 100ms; // A surface that can be seen has drawn a frame by then.
constexpr auto kKept = 50ms;

QRect rounded(const QRectF &rect)
{
    return {QPoint(qRound(rect.left()), qRound(rect.top())),
            QPoint(qRound(rect.right()) - 1, qRound(rect.bottom()) - 1)};
}

} // namespace

WaylandPanel::WaylandPanel(std::unique_ptr<QWindow> window, WaylandPointer &pointer, const QRectF &frame)
    : m_pointer(pointer)
    , m_window(std::move(window))
    , m_surface(Window::get(m_window.get()))
{
    m_window->setFlags(Qt::FramelessWindowHint);
    m_surface->setAnchors(Window::AnchorTop); // In its middle, as the frames are.
    m_surface->setLayer(Window::LayerTop);
    m_surface->setKeyboardInteractivity(Window::KeyboardInteractivityNone);
    m_surface->setScope(QStringLiteral("kestrune"));
    m_surface->setCloseOnDismissed(false);
    m_unseen.setSingleShot(true);
    m_unseen.setInterval(kUnseen);
    m_unseen.callOnTimeout(this, &WaylandPanel::remap);
    m_kept.setSingleShot(true);
    m_kept.setInterval(kKept);
    m_kept.callOnTimeout(this, &WaylandPanel::giveBack);
    connect(m_window.get(), &QWindow::activeChanged, this, &WaylandPanel::activeChanged);
    setFrame(frame);
}

WaylandPanel::~WaylandPanel() { m_pointer.forget(*m_window); }

void WaylandPanel::setFrame(const QRectF &frame)
{
    m_frame = frame;
    const bool moves = m_window->isVisible() && m_window->screen() != Points::screenAt(Points::toQt(frame));
    if (moves)
        hide(); // A surface stays on its output.
    place();
    if (moves)
        m_window->show();
}

void WaylandPanel::place()
{
    const QRectF frame = Points::toQt(m_frame);
    QScreen *const screen = Points::screenAt(frame);
    // The output follows from the geometry, too.
    m_window->setScreen(screen);
    m_window->setGeometry(QRect(rounded(frame).topLeft(), frame.size().toSize()));
    m_pointer.watch(*m_window, m_frame);
    applyHitArea();
}

void WaylandPanel::setBelowPanels(bool below)
{
    if (std::exchange(m_below, below) == below)
        return;
    constexpr int outOfTheirWay = 0; // As it is by itself.
    constexpr int wholeOutput = -1;
    m_surface->setExclusiveZone(below ? outOfTheirWay : wholeOutput);
    if (m_window->isVisible())
        remap(); // A frame in which nothing has changed is not sent.
}

void WaylandPanel::orderFront()
{
    m_window->show();
    applyHitArea();
}

void WaylandPanel::orderOut()
{
    resignKey();
    hide();
}

void WaylandPanel::setHitArea(const QRectF &area)
{
    m_hitArea = area;
    applyHitArea();
}

void WaylandPanel::applyHitArea()
{
    const QRect area = rounded(Points::toQt(m_hitArea).translated(-Points::toQt(m_frame).topLeft()));
    // An empty mask would be none at all.
    m_window->setMask(area.isEmpty() ? QRegion(-1, -1, 1, 1) : QRegion(area));
    m_window->requestUpdate();
}

void WaylandPanel::announceFrame() { m_unseen.stop(); }

void WaylandPanel::makeKey()
{
    m_key = true;
    // What a full-screen window covers gets no frame, and without one is not lifted above it.
    m_surface->setLayer(Window::LayerOverlay);
    m_surface->setKeyboardInteractivity(Window::KeyboardInteractivityExclusive);
    m_window->requestUpdate();
    m_unseen.start();
}

void WaylandPanel::remap()
{
    qCInfo(windowsLog, "a panel is shown anew");
    hide();
    m_window->show();
    applyHitArea();
}

void WaylandPanel::hide()
{
    m_window->hide();
    m_pointer.left(m_window.get());
}

void WaylandPanel::activeChanged()
{
    qCInfo(windowsLog, "the panel %s the keyboard", m_window->isActive() ? "has" : "lost");
    if (m_window->isActive() || !m_key || QGuiApplication::focusWindow())
        return;
    m_key = false;
    letGo();
    m_pointer.pressOutside();
}

void WaylandPanel::resignKey()
{
    if (std::exchange(m_key, false))
        letGo();
}

void WaylandPanel::letGo()
{
    m_unseen.stop();
    m_surface->setLayer(Window::LayerTop);
    m_surface->setKeyboardInteractivity(Window::KeyboardInteractivityNone);
    m_window->requestUpdate();
    m_kept.start();
}

void WaylandPanel::giveBack()
{
    // Some compositors leave the keyboard with a surface that no longer wants it, but not with one that goes.
    if (m_window->isActive() && !m_key)
        remap();
}

} // namespace Kestrune
