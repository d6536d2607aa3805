#include "SharedThumbnails.h"

#include "ThumbnailFile.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongest = 10s;

} // namespace

QFuture<QImage> SharedThumbnails::thumbnail(const QString &path)
{
    return m_worker.run(kLongest,
                        [path, pictures = m_pictures] { return ThumbnailFile::read(path, *pictures); });
}

} // namespace Kestrune
