#include "SharedThumbnails.h"

#include "ThumbnailFile.h"

#include <QtConcurrent/qtconcurrenttask.h>

namespace Kestrune {

SharedThumbnails::SharedThumbnails()
{
    m_worker.setMaxThreadCount(1);
    m_worker.setThreadPriority(QThread::LowPriority);
}

SharedThumbnails::~SharedThumbnails() { m_worker.clear(); }

QFuture<QImage> SharedThumbnails::thumbnail(const QString &path)
{
    return QtConcurrent::task(&ThumbnailFile::read)
        .withArguments(path)
        .onThreadPool(m_worker)
        .withPriority(++m_asked)
        .spawn();
}

} // namespace Kestrune
