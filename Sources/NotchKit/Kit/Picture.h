#pragma once

#include <QImage>
#include <QQuickPaintedItem>

namespace Kestrune {

/// An image scaled to fill the item and clipped to its rounded corners; nothing while there is none.
class Picture : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage RESET resetImage NOTIFY imageChanged)
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY radiusChanged)

public:
    explicit Picture(QQuickItem *parent = nullptr);

    const QImage &image() const { return m_image; }
    void setImage(const QImage &image);
    void resetImage() { setImage({}); }

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void imageChanged();
    void radiusChanged();

private:
    QImage m_image;
    qreal m_radius = 0;
};

} // namespace Kestrune
