#pragma once

#include "NotchKit/NotchPanels.h"

class QQmlEngine;

namespace Kestrune {

class WindowSystem;

/// Makes notch panels of the Qt Quick views.
class PanelFactory : public NotchPanels
{
public:
    /// Both outlive the factory and its panels.
    PanelFactory(QQmlEngine &engine, WindowSystem &windows);

    std::unique_ptr<NotchPanel> create(const QRectF &frame, NotchScreenModel &model,
                                       NotchServices &services) override;

private:
    QQmlEngine &m_engine;
    WindowSystem &m_windows;
};

} // namespace Kestrune
