#pragma once

#include "Async/Worker.h"
#include "NotchKit/Platform/Thumbnails.h"

namespace Kestrune {

/// Thumbnails from the desktop's shared cache, made where it has none; one at a time.
class SharedThumbnails : public Thumbnails
{
public:
    QFuture<QImage> thumbnail(const QString &path) override;

private:
    Worker m_worker{"thumbnails", Worker::Order::newestFirst};
};

} // namespace Kestrune
