#pragma once

#include "ScreenshotTools.h"

#include <QList>
#include <QString>

#include <sys/types.h>

namespace Kestrune {

/// A folder in which screenshots are looked for; those below it have entries of their own.
struct ScreenshotFolder
{
    enum class State { missing, unreadable, readable };

    QString path;
    bool dedicated = false; ///< Every picture in it is a screenshot.
    State state = State::missing;
    dev_t device = 0; ///< Which folder it is at present, whatever leads there.
    ino_t node = 0;

    bool operator==(const ScreenshotFolder &) const = default;
};

using ScreenshotFolders = QList<ScreenshotFolder>;

/// Where screenshots are found now: `location` (the user's own choice, may be empty), what the tools were
/// told, the folders below the user's pictures that are named for them, the user's folders for pictures and
/// the desktop, and the home folder. Where one of the first holds nothing but pictures, up to 128 folders
/// below it count as well. The likeliest first; each folder once. Any thread; reads the disk.
ScreenshotFolders findScreenshotFolders(const QString &location, const ScreenshotTools &tools);

} // namespace Kestrune
