#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <functional>

namespace Kestrune {

/// One screenshot that lies on the disk.
struct ScreenCapture
{
    QString path;       ///< Absolute; unique among the results.
    QDateTime created;  ///< UTC.
    QDateTime modified; ///< UTC; later when another picture has taken the file's place.

    bool operator==(const ScreenCapture &) const = default;
};

/// A live query for the user's screenshots. Main thread only; nothing here blocks.
class ScreenCaptureQuery
{
public:
    /// How many results there are at most.
    static constexpr int kMostResults = 48;

    using Handler = std::function<void()>;

    virtual ~ScreenCaptureQuery() = default;

    /// What is called on the main thread once the first gathering has finished, and after every change since.
    virtual void installHandler(Handler handler) = 0;

    /// Begins to gather and then follows what happens on the disk; nothing happens while it runs.
    virtual void start() = 0;

    /// Ends that and forgets the results. No handler is called before the next start.
    virtual void stop() = 0;

    /// The newest screenshots by their creation, newest first: complete pictures that were there when the
    /// handler was called last.
    virtual QList<ScreenCapture> results() const = 0;

    /// Whether the folder that screenshots go to is there and may not be read.
    virtual bool isAccessMissing() const = 0;

    /// Looks again at where screenshots go and whether they may be read; the handler is called when that
    /// changes anything. Nothing happens unless it runs.
    virtual void requestAccess() = 0;
};

} // namespace Kestrune
