#include "FileThumbnail.h"

#include "NotchKit/Platform/Thumbnails.h"

namespace Kestrune {

FileThumbnail::FileThumbnail(QObject *parent)
    : QObject(parent)
{
    connect(this, &FileThumbnail::askedChanged, this, &FileThumbnail::ask);
    connect(&m_answer, &QFutureWatcher<QImage>::finished, this, &FileThumbnail::receive);
}

FileThumbnail::~FileThumbnail()
{
    if (!m_answer.isFinished())
        m_answer.cancel();
}

void FileThumbnail::ask()
{
    if (m_services && !m_path.isEmpty())
        m_answer.setFuture(m_services->thumbnails().thumbnail(m_path));
}

void FileThumbnail::receive()
{
    if (m_answer.isCanceled() || m_answer.future().resultCount() == 0)
        return;
    m_image = m_answer.result();
    Q_EMIT imageChanged();
}

} // namespace Kestrune
