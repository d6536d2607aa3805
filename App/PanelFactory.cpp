#include "PanelFactory.h"

#include "Desktop/X11/X11Panel.h"
#include "NotchKit/Views/NotchWindow.h"

namespace Kestrune {

PanelFactory::PanelFactory(QQmlEngine &engine, const X11Desktop &desktop)
    : m_engine(engine)
    , m_desktop(desktop)
{}

std::unique_ptr<NotchPanel> PanelFactory::create(const QRectF &frame, NotchScreenModel &model,
                                                 NotchServices &services)
{
    auto window = std::make_unique<NotchWindow>(m_engine, model, services);
    const auto *view = window.get();
    auto panel = std::make_unique<X11Panel>(std::move(window), m_desktop, frame);
    QObject::connect(view, &NotchWindow::outlineChanged, panel.get(), &X11Panel::setOutline);
    return panel;
}

} // namespace Kestrune
