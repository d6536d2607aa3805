#include "CameraPreview.h"

#include <QQuickWindow>
#include <QSGImageNode>

namespace Kestrune {

CameraPreview::CameraPreview(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void CameraPreview::setMirror(MirrorModel *mirror)
{
    if (m_mirror == mirror)
        return;
    if (m_mirror)
        m_mirror->disconnect(this);
    m_mirror = mirror;
    show({});
    if (mirror) {
        connect(mirror, &MirrorModel::pictureTaken, this, &CameraPreview::show);
        connect(mirror, &MirrorModel::runningChanged, this, [this] {
            show({}); // the last picture of one showing is not the first of the next
            request();
        });
    }
    request();
    Q_EMIT mirrorChanged();
}

PictureShape CameraPreview::shape() const
{
    const qreal scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    return {(size() * scale).toSize(), m_radius * scale};
}

void CameraPreview::request()
{
    if (m_mirror && m_mirror->running() && window() && !size().isEmpty())
        m_mirror->requestPicture(shape());
}

void CameraPreview::show(const QImage &picture)
{
    const bool had = hasPicture();
    m_picture = picture;
    m_isNew = true;
    update();
    if (had != hasPicture())
        Q_EMIT hasPictureChanged();
}

QSGNode *CameraPreview::updatePaintNode(QSGNode *old, UpdatePaintNodeData * /*data*/)
{
    auto *node = static_cast<QSGImageNode *>(old);
    if (m_picture.isNull()) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        m_isNew = true;
    }
    if (m_isNew)
        node->setTexture(window()->createTextureFromImage(m_picture));
    node->setRect(boundingRect());
    node->setFiltering(QSGTexture::Linear);
    // The picture before this one is not drawn from any more: its place is free for the next.
    if (std::exchange(m_isNew, false))
        QMetaObject::invokeMethod(this, &CameraPreview::request, Qt::QueuedConnection);
    return node;
}

void CameraPreview::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange)
        request();
}

void CameraPreview::geometryChange(const QRectF &now, const QRectF &before)
{
    QQuickItem::geometryChange(now, before);
    request();
}

} // namespace Kestrune
