#include "OutlineNode.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGRectangleNode>
#include <QSGRenderNode>

#include <cmath>
#include <optional>

namespace Kestrune {

/// The whole outline, of which the renderer leaves what the rectangles do not hide.
class OutlineNode::Edge : public QSGRenderNode
{
public:
    explicit Edge(QQuickWindow &window)
        : m_window(window)
    {}

    void setOutline(const QPainterPath &outline)
    {
        m_outline = outline;
        markDirty(DirtyMaterial);
    }

    RenderingFlags flags() const override { return BoundedRectRendering; }
    QRectF rect() const override { return m_outline.boundingRect(); }
    void render(const RenderState *state) override
    {
        auto *const painter = static_cast<QPainter *>(
            m_window.rendererInterface()->getResource(&m_window, QSGRendererInterface::PainterResource));
        painter->setClipRegion(*state->clipRegion());
        painter->setTransform(matrix()->toTransform());
        painter->setOpacity(inheritedOpacity());
        painter->setRenderHint(QPainter::Antialiasing);
        painter->fillPath(m_outline, Qt::black);
    }

private:
    QQuickWindow &m_window;
    QPainterPath m_outline;
};

namespace {

QSGRectangleNode *blackRectangle(QQuickWindow &window)
{
    auto *const node = window.createRectangleNode();
    node->setColor(Qt::black);
    return node;
}

/// The fewest points that are whole pixels, too; none where only many are.
std::optional<double> gridOf(double pixelsPerPoint)
{
    for (const double points : {1, 2, 3, 4}) {
        const double pixels = points * pixelsPerPoint;
        if (std::abs(pixels - std::round(pixels)) < 1e-6)
            return points;
    }
    return std::nullopt;
}

/// What lies within these edges and on the grid; nothing where there is no room.
QRectF within(double left, double right, double bottom, std::optional<double> grid)
{
    if (!grid)
        return {};
    const double first = std::ceil(left / *grid) * *grid;
    const double last = std::floor(right / *grid) * *grid;
    return {first, 0, std::max(0.0, last - first), std::max(0.0, std::floor(bottom / *grid) * *grid)};
}

} // namespace

OutlineNode::OutlineNode(QQuickWindow &window)
    : m_window(window)
    , m_edge(new Edge(window))
    , m_body(blackRectangle(window))
    , m_middle(blackRectangle(window))
{
    for (QSGNode *part :
         {static_cast<QSGNode *>(m_edge), static_cast<QSGNode *>(m_body), static_cast<QSGNode *>(m_middle)}) {
        part->setFlag(OwnedByParent);
        appendChildNode(part);
    }
}

void OutlineNode::setOutline(const QPainterPath &outline, double top, double bottom)
{
    const QRectF bounds = outline.boundingRect();
    const double left = bounds.left() + top;
    const double right = bounds.right() - top;
    const auto grid = gridOf(m_window.effectiveDevicePixelRatio());
    m_edge->setOutline(outline);
    m_body->setRect(within(left, right, bounds.bottom() - bottom, grid));
    m_middle->setRect(within(left + bottom, right - bottom, bounds.bottom(), grid));
}

} // namespace Kestrune
