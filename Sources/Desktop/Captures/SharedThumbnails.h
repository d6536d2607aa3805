#pragma once

#include "Async/Worker.h"
#include "NotchKit/Platform/Thumbnails.h"

#include <memory>

namespace Kestrune {

class PictureReader;

/// Thumbnails from the desktop's shared cache, made where it has none; one at a time.
class SharedThumbnails : public Thumbnails
{
public:
    explicit SharedThumbnails(std::shared_ptr<PictureReader> pictures)
        : m_pictures(std::move(pictures))
    {}

    QFuture<QImage> thumbnail(const QString &path) override;

private:
    std::shared_ptr<PictureReader> m_pictures;
    Worker m_worker{"thumbnails", Worker::Order::newestFirst};
};

} // namespace Kestrune
