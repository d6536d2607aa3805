#include "NotchShapeItem.h"

#include "NotchKit/NotchShape.h"

#include <QPainter>

namespace Kestrune {

NotchShapeItem::NotchShapeItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &NotchShapeItem::shapeChanged, this, &NotchShapeItem::change);
}

void NotchShapeItem::setTopRadius(double radius)
{
    if (std::exchange(m_topRadius, radius) != radius)
        Q_EMIT shapeChanged();
}

void NotchShapeItem::setBottomRadius(double radius)
{
    if (std::exchange(m_bottomRadius, radius) != radius)
        Q_EMIT shapeChanged();
}

QPainterPath NotchShapeItem::outline() const
{
    return NotchShape{m_topRadius, m_bottomRadius}.path(boundingRect());
}

void NotchShapeItem::paint(QPainter *painter)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::black);
    painter->drawPath(outline());
}

void NotchShapeItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickPaintedItem::geometryChange(now, before);
    change();
}

void NotchShapeItem::change()
{
    update();
    polish();
}

void NotchShapeItem::updatePolish() { Q_EMIT outlineChanged(outline().translated(mapToScene({}))); }

} // namespace Kestrune
