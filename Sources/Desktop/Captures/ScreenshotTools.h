#pragma once

#include <QStringList>

namespace Kestrune {

/// Where screenshot tools were told to put their files, and what to call them.
struct ScreenshotTools
{
    QStringList folders;
    QStringList patterns; ///< As strftime takes them.

    bool operator==(const ScreenshotTools &) const = default;
};

/// The files under the user's configuration folder that tools keep that in.
QStringList screenshotToolFiles();

/// Reads those files, and what is kept in the desktop's own settings where their programs are installed.
/// Any thread; waits for a program of the desktop.
ScreenshotTools readScreenshotTools();

} // namespace Kestrune
