#pragma once

#include "NotchKit/Platform/NotchPanels.h"

class QQmlEngine;

namespace Kestrune {

class X11Desktop;

/// Makes notch panels of the Qt Quick views on X11.
class PanelFactory : public NotchPanels
{
public:
    /// Both outlive the factory and its panels.
    PanelFactory(QQmlEngine &engine, const X11Desktop &desktop);

    std::unique_ptr<NotchPanel> create(const QRectF &frame, NotchScreenModel &model,
                                       NotchServices &services) override;

private:
    QQmlEngine &m_engine;
    const X11Desktop &m_desktop;
};

} // namespace Kestrune
