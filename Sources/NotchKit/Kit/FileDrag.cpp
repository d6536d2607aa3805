#include "FileDrag.h"

#include "Symbols.h"

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>

namespace Kestrune {

namespace {

constexpr int kSize = 72; // Points.

bool isHeld() { return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton); }

/// The mouse area would otherwise wait for a release that the drag keeps to itself.
void ungrabMouse(const QObject *mouseArea)
{
    const auto *item = qobject_cast<const QQuickItem *>(mouseArea);
    QQuickItem *grabber = item && item->window() ? item->window()->mouseGrabberItem() : nullptr;
    if (grabber)
        grabber->ungrabMouse();
}

} // namespace

void FileDrag::move(double x, double y)
{
    const double distance = (QPointF(x, y) - m_pressed).manhattanLength();
    if (!m_active && isHeld() && distance >= QGuiApplication::styleHints()->startDragDistance())
        run();
}

/// Opaque to its corners: without a compositor there is no other.
QPixmap FileDrag::carried() const
{
    if (!m_picture.isNull())
        return QPixmap::fromImage(
            m_picture.scaled(kSize, kSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(QColor(0x2c, 0x2c, 0x2e));
    QPainter painter(&pixmap);
    QFont font(Symbols::family());
    font.setPixelSize(kSize / 2);
    painter.setFont(font);
    painter.setPen(QColor(255, 255, 255, 200));
    painter.drawText(pixmap.rect(), Qt::AlignCenter, Symbols::glyph(m_symbol));
    return pixmap;
}

void FileDrag::run()
{
    ungrabMouse(parent());
    auto *files = new QMimeData;
    files->setUrls(m_urls);
    auto *drag = new QDrag(this);
    drag->setMimeData(files);
    drag->setPixmap(carried());
    drag->setHotSpot(QRect({}, drag->pixmap().size()).center());
    setActive(true);
    const QPointer<FileDrag> alive(this);
    drag->exec(Qt::CopyAction | Qt::LinkAction, Qt::CopyAction);
    if (alive)
        setActive(false);
}

void FileDrag::setActive(bool active)
{
    if (std::exchange(m_active, active) != active)
        Q_EMIT activeChanged();
}

} // namespace Kestrune
