#pragma once

#include <QByteArray>
#include <QDateTime>

#include <optional>

namespace Kestrune {

/// What the file system tells about a picture's file.
struct PictureStatus
{
    QDateTime created;  ///< UTC; where the file system does not keep it, the last change.
    QDateTime modified; ///< UTC.
    qint64 size = 0;    ///< Bytes.
};

/// Nothing for what is no regular file or is empty. A link is no file. Any thread.
std::optional<PictureStatus> statPicture(const QByteArray &path);

/// Whether the file ends as a complete picture of its type does, so that nobody is still writing it.
bool isWholePicture(const QByteArray &path);

/// Whether a PNG file says in its texts that a screenshot tool made it. Reads only what stands before the
/// picture itself.
bool isMarkedAsScreenshot(const QByteArray &path);

} // namespace Kestrune
