#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "MountTable.h"

#include <QHash>
#include <QSet>
#include <QUrl>

#include <memory>

namespace Kestrune {

/// What a look at files found; each is in one of the sets at most.
struct ShelfFindings
{
    QSet<QUrl> gone; ///< Deleted or moved.
    QSet<QUrl> away; ///< Their disk or share is not mounted, does not answer or lets nobody look.
    QSet<QUrl> folders;
    QStringList mounts; ///< What the files lie in or, when away, lay in; sorted, without the root folder.

    void unite(const ShelfFindings &other);
};

/// Looks for files without a wait on the main thread, each disk by itself: one that does not answer costs its
/// own files alone, and is not asked again before it has come back. Main thread only.
class ShelfLook
{
public:
    /// Looks at `files`, which were last seen in `mounts` (ShelfFindings::mounts).
    QCoro::Task<ShelfFindings> lookAt(QList<QUrl> files, QStringList mounts);

private:
    using Token = std::shared_ptr<const bool>;

    Worker m_disks{"shelf"};
    QHash<QString, Token> m_hanging; ///< By the mounted folder. The look that hangs holds it as well.
};

} // namespace Kestrune
