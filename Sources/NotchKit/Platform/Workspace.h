#pragma once

#include <QFuture>
#include <QList>
#include <QUrl>

namespace Kestrune {

/// Opens addresses with the desktop's programs and shows files in its file manager. Main thread only; nothing
/// here waits.
class Workspace
{
public:
    virtual ~Workspace() = default;

    /// Opens a web page in the default browser, or, for a privacy-page address, the desktop's settings.
    virtual void open(const QUrl &url) = 0;

    /// Shows the files, selected, in the file manager; where none answers, their folders. Addresses that
    /// are no local files are left out, and nothing happens when none remains.
    virtual void reveal(const QList<QUrl> &files) = 0;

    /// Whether a program is installed in which pictures are edited. The future always finishes.
    virtual QFuture<bool> hasPictureEditor() = 0;

    /// Opens the picture in that program; nothing happens without one.
    virtual void edit(const QUrl &picture) = 0;

    /// Moves a local file to the user's trash. The future always finishes, with whether it is there now.
    virtual QFuture<bool> moveToTrash(const QUrl &file) = 0;
};

} // namespace Kestrune
