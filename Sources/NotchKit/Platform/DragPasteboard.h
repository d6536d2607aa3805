#pragma once

#include <QFuture>
#include <QList>
#include <QUrl>

namespace Kestrune {

/// What another program is dragging over the notch just now; a drag that has ended leaves nothing behind.
/// Main thread only; nothing here waits.
class DragPasteboard
{
public:
    virtual ~DragPasteboard() = default;

    /// A drag is going on that carries files. False until its source has named them.
    virtual bool holdsFileUrls() const = 0;

    /// The local files of the drag that is over the notch or was just dropped on it, in their order. Always
    /// finishes: with none where it carries none, leaves, or its source does not answer within two seconds.
    virtual QFuture<QList<QUrl>> fileUrls() = 0;
};

} // namespace Kestrune
