#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace Kestrune {

class PictureReader;

/// The small pictures that all programs of the desktop share, each in a file of its own below the user's
/// cache folder. Any thread; reads and writes the disk.
namespace ThumbnailFile {

/// Larger pictures are refused unopened, whatever their files claim to hold.
constexpr qint64 kMostPixels = 64'000'000;
constexpr qint64 kMostBytes = qint64{64} * 1024 * 1024;

/// The address under which a file's thumbnail is known, as the desktop's programs write it.
QByteArray addressOf(const QString &path);

/// The file that holds it.
QString pathFor(const QString &path);

/// A picture file's thumbnail: the shared one while it is up to date, else one made from the file and then
/// shared. A null image for what is no regular file, no picture, damaged or too large.
QImage read(const QString &path, PictureReader &pictures);

} // namespace ThumbnailFile

} // namespace Kestrune
