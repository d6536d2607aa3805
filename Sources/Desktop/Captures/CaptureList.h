#pragma once

#include "NotchKit/Platform/ScreenCaptureQuery.h"
#include "ScreenshotFolders.h"
#include "ScreenshotNames.h"

#include <optional>

namespace Kestrune {

/// The newest screenshots in some folders: read whole once, then kept up to date file by file. For one
/// thread; reads the disk.
class CaptureList
{
public:
    /// Newest first.
    const QList<ScreenCapture> &captures() const { return m_captures; }

    /// Some have been removed while older ones were left out: only `gather` finds those.
    bool isIncomplete() const { return m_leftOut && m_captures.size() < ScreenCaptureQuery::kMostResults; }

    /// Looks at everything in the folders.
    void gather(const ScreenshotFolders &folders, const ScreenshotNames &names);

    /// Looks at one file of one of the folders that was made, changed, or is gone.
    void update(const ScreenshotFolder &folder, const QByteArray &name, const ScreenshotNames &names);

private:
    /// A file that may be a screenshot.
    struct Candidate
    {
        ScreenCapture capture;
        bool decided = false; ///< By its name or folder.
    };

    static void list(const ScreenshotFolder &folder, const ScreenshotNames &names, QList<Candidate> &found);
    static std::optional<Candidate> candidate(const ScreenshotFolder &folder, const QByteArray &name,
                                              const ScreenshotNames &names);

    QList<ScreenCapture> m_captures;
    bool m_leftOut = false;
};

} // namespace Kestrune
