#pragma once

#include <QPainterPath>
#include <QQuickItem>

namespace Kestrune {

/// The notch's outline filled black, in the middle of the item's upper edge. The item itself does not move
/// with the outline: it has room for all that the notch grows to, and whole points for a place.
class NotchShapeItem : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(NotchShape)
    /// Of the outline, in points.
    Q_PROPERTY(double notchWidth MEMBER m_width WRITE setNotchWidth NOTIFY shapeChanged)
    Q_PROPERTY(double notchHeight MEMBER m_height WRITE setNotchHeight NOTIFY shapeChanged)
    Q_PROPERTY(double topRadius MEMBER m_topRadius WRITE setTopRadius NOTIFY shapeChanged)
    Q_PROPERTY(double bottomRadius MEMBER m_bottomRadius WRITE setBottomRadius NOTIFY shapeChanged)

public:
    explicit NotchShapeItem(QQuickItem *parent = nullptr);

    void setNotchWidth(double width) { set(m_width, width); }
    void setNotchHeight(double height) { set(m_height, height); }
    void setTopRadius(double radius) { set(m_topRadius, radius); }
    void setBottomRadius(double radius) { set(m_bottomRadius, radius); }

Q_SIGNALS:
    void shapeChanged();

    /// The outline in scene coordinates, at most once a frame, before the frame is drawn.
    void outlineChanged(const QPainterPath &outline);

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void set(double &length, double now);
    void change();

    double m_width = 0;
    double m_height = 0;
    double m_topRadius = 0;
    double m_bottomRadius = 0;
    QPainterPath m_outline; ///< As last polished.
};

} // namespace Kestrune
