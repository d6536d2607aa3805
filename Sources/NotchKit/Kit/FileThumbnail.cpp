#include "FileThumbnail.h"

#include "NotchKit/Platform/Thumbnails.h"

namespace Kestrune {

FileThumbnail::FileThumbnail(QObject *parent)
    : QObject(parent)
{
    connect(this, &FileThumbnail::askedChanged, this, &FileThumbnail::ask);
}

void FileThumbnail::ask()
{
    if (m_surroundings && !m_path.isEmpty())
        m_making.restart(&FileThumbnail::make, this, m_path);
}

QCoro::Task<> FileThumbnail::make(QString path)
{
    const QFuture<QImage> asked = m_surroundings->thumbnails().thumbnail(path);
    m_image = co_await until(asked);
    Q_EMIT imageChanged();
}

} // namespace Kestrune
