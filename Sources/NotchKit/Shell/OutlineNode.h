#pragma once

#include <QPainterPath>
#include <QSGNode>

class QQuickWindow;
class QSGRectangleNode;

namespace Kestrune {

/// The notch's outline filled black, drawn with the painter of the software renderer. What of it is surely
/// covered are rectangles of whole points and pixels, which the renderer knows to hide what lies beneath:
/// neither the shadow nor the outline is drawn there, nor anew when what is above changes.
class OutlineNode : public QSGNode
{
public:
    /// For an item of `window`, at whole points of it.
    explicit OutlineNode(QQuickWindow &window);

    /// Of a body that is inset by `top` at either side, and whose lower corners have the radius `bottom`.
    void setOutline(const QPainterPath &outline, double top, double bottom);

private:
    class Edge;

    QQuickWindow &m_window;
    Edge *m_edge;
    QSGRectangleNode *m_body;   ///< Between the sides, down to where the lower corners begin.
    QSGRectangleNode *m_middle; ///< Between the lower corners, down to the lower edge.
};

} // namespace Kestrune
