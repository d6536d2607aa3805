#pragma once

#include "NotchKit/Platform/CameraSession.h"
#include "NotchKit/Tools/Mirror/MirrorModel.h"

#include <QImage>
#include <QPointer>
#include <QQuickItem>

namespace Kestrune {

/// The mirror's picture, filling the item and clipped to its rounded corners; nothing while there is none.
/// Asks for the next picture once one has been drawn, so that a view which is behind skips pictures.
class CameraPreview : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kestrune::MirrorModel *mirror MEMBER m_mirror WRITE setMirror NOTIFY mirrorChanged REQUIRED)
    /// Of the corners, in points.
    Q_PROPERTY(qreal radius MEMBER m_radius NOTIFY radiusChanged)
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY hasPictureChanged)

public:
    explicit CameraPreview(QQuickItem *parent = nullptr);

    void setMirror(MirrorModel *mirror);
    bool hasPicture() const { return !m_picture.isNull(); }

    /// What is shown, and how it was asked for.
    const QImage &picture() const { return m_picture; }
    PictureShape shape() const;

Q_SIGNALS:
    void mirrorChanged();
    void radiusChanged();
    void hasPictureChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;

private:
    void request();
    void show(const QImage &picture);

    QPointer<MirrorModel> m_mirror;
    QImage m_picture;
    qreal m_radius = 0;
    bool m_isNew = false; ///< The picture has not been drawn yet.
};

} // namespace Kestrune
