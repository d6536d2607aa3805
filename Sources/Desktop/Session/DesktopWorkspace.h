#pragma once

#include "NotchKit/Platform/Workspace.h"

namespace Kestrune {

/// Opens addresses with the desktop's own programs, each started on its own and never waited for.
class DesktopWorkspace : public Workspace
{
public:
    void open(const QUrl &url) override;
};

} // namespace Kestrune
