#pragma once

#include <QPainterPath>
#include <QQuickPaintedItem>

namespace Kestrune {

/// The notch's outline filled black, at the item's size.
class NotchShapeItem : public QQuickPaintedItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(NotchShape)
    Q_PROPERTY(double topRadius READ topRadius WRITE setTopRadius NOTIFY shapeChanged)
    Q_PROPERTY(double bottomRadius READ bottomRadius WRITE setBottomRadius NOTIFY shapeChanged)

public:
    explicit NotchShapeItem(QQuickItem *parent = nullptr);

    double topRadius() const { return m_topRadius; }
    void setTopRadius(double radius);
    double bottomRadius() const { return m_bottomRadius; }
    void setBottomRadius(double radius);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void shapeChanged();

    /// The outline in scene coordinates, at most once a frame, before the frame is drawn.
    void outlineChanged(const QPainterPath &outline);

protected:
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void updatePolish() override;

private:
    QPainterPath outline() const;
    void change();

    double m_topRadius = 0;
    double m_bottomRadius = 0;
};

} // namespace Kestrune
