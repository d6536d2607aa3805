#include "NotchShapeItem.h"

#include "NotchKit/NotchShape.h"
#include "OutlineNode.h"

#include <algorithm>

namespace Kestrune {

NotchShapeItem::NotchShapeItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void NotchShapeItem::set(double &length, double now)
{
    if (std::exchange(length, now) == now)
        return;
    change();
    Q_EMIT shapeChanged();
}

void NotchShapeItem::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    change();
}

void NotchShapeItem::change()
{
    update();
    polish();
}

void NotchShapeItem::updatePolish()
{
    const QRectF place((width() - m_width) / 2, 0, m_width, m_height);
    m_outline = NotchShape{m_topRadius, m_bottomRadius}.path(place);
    Q_EMIT outlineChanged(m_outline.translated(mapToScene({})));
}

QSGNode *NotchShapeItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *const shape = node ? static_cast<OutlineNode *>(node) : new OutlineNode(*window());
    const double bottom = std::min({m_width / 4, m_height / 2, m_bottomRadius});
    shape->setOutline(m_outline, std::min(m_width / 4, m_topRadius), bottom);
    return shape;
}

} // namespace Kestrune
