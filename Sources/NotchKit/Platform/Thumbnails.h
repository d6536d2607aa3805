#pragma once

#include <QFuture>
#include <QImage>
#include <QString>

namespace Kestrune {

/// Small images of picture files. Called on the main thread; nothing here blocks.
class Thumbnails
{
public:
    static constexpr int kSide = 256; ///< Pixels of the longer side, at most.

    virtual ~Thumbnails() = default;

    /// An image of the file, which is null for what is no picture or too large a one. What was asked for last
    /// is made first. A future that is cancelled before its turn costs nothing.
    virtual QFuture<QImage> thumbnail(const QString &path) = 0;
};

} // namespace Kestrune
