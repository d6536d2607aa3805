#pragma once

class QUrl;

namespace Kestrune {

/// Opens addresses with the desktop's programs. Main thread only; nothing here waits.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Opens a web page in the default browser, or, for a privacy-page address, the desktop's settings.
    virtual void open(const QUrl &url) = 0;
};

} // namespace Kestrune
