#include "Picture.h"

#include <QPainter>

namespace Kestrune {

Picture::Picture(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void Picture::setImage(const QImage &image)
{
    if (m_image.cacheKey() == image.cacheKey())
        return;
    m_image = image;
    Q_EMIT imageChanged();
    update();
}

void Picture::paint(QPainter *painter)
{
    if (m_image.isNull())
        return;
    const QRectF area = boundingRect();
    const QSizeF filled = QSizeF(m_image.size()).scaled(area.size(), Qt::KeepAspectRatioByExpanding);
    QTransform placing;
    placing.translate((area.width() - filled.width()) / 2, (area.height() - filled.height()) / 2);
    placing.scale(filled.width() / m_image.width(), filled.height() / m_image.height());
    QBrush brush(m_image);
    brush.setTransform(placing);
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->drawRoundedRect(area, m_radius, m_radius);
}

} // namespace Kestrune
