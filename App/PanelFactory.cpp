#include "PanelFactory.h"

#include "NotchKit/Platform/WindowSystem.h"
#include "NotchKit/Shell/NotchWindow.h"

#include <QTimer>

#include <chrono>

namespace Kestrune {

namespace {

constexpr auto kUntilPrepared = std::chrono::seconds(3);

} // namespace

PanelFactory::PanelFactory(QQmlEngine &engine, WindowSystem &windows)
    : m_engine(engine)
    , m_windows(windows)
{}

std::unique_ptr<NotchPanel> PanelFactory::create(const QRectF &frame, NotchScreenModel &model,
                                                 NotchServices &services)
{
    auto window = std::make_unique<NotchWindow>(m_engine, model, services);
    auto *view = window.get();
    if (m_windows.pacesFrames())
        view->paceAnimations();
    view->paceAnimations([view, windows = &m_windows](std::function<void()> then) {
        return windows->awaitFrame(*view, std::move(then));
    });
    // After the start, and after the rush of a login.
    QTimer::singleShot(kUntilPrepared, view, &NotchWindow::prepare);
    auto panel = m_windows.makePanel(std::move(window), frame);
    // The window goes with its panel.
    QObject::connect(view, &NotchWindow::outlineChanged, view,
                     [host = panel.get()](const QPainterPath &outline) { host->setOutline(outline); });
    // With the software renderer a frame is drawn in this thread, and put on the screen right after this
    // signal.
    QObject::connect(view, &QQuickWindow::afterRendering, view,
                     [host = panel.get()] { host->announceFrame(); });
    return panel;
}

} // namespace Kestrune
