#pragma once

#include "NotchKit/Platform/NotchPanel.h"

#include <memory>

namespace Kestrune {

class NotchScreenModel;
class NotchServices;

/// Makes panels for the controller.
class NotchPanels
{
public:
    virtual ~NotchPanels() = default;

    /// A hidden panel at `frame` that shows the notch view for `model`. The references outlive the panel.
    virtual std::unique_ptr<NotchPanel> create(const QRectF &frame, NotchScreenModel &model,
                                               NotchServices &services) = 0;
};

} // namespace Kestrune
