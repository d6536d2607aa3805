#pragma once

#include "NotchKit/Platform/Thumbnails.h"

#include <QThreadPool>

namespace Kestrune {

/// Thumbnails from the desktop's shared cache, made where it has none; one at a time on a thread of their
/// own.
class SharedThumbnails : public Thumbnails
{
public:
    SharedThumbnails();

    /// Waits for the one that is being made.
    ~SharedThumbnails() override;

    QFuture<QImage> thumbnail(const QString &path) override;

private:
    QThreadPool m_worker;
    int m_asked = 0;
};

} // namespace Kestrune
