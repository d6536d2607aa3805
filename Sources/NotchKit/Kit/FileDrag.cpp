#include "FileDrag.h"

#include "Symbols.h"

#include <QDrag>
#include <QGuiApplication>
#include <QLocale>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr int kSize = 72; // Points.
constexpr int kBadge = 22;

bool isHeld() { return QGuiApplication::mouseButtons().testFlag(Qt::LeftButton); }

/// How many files the pointer carries, in the corner.
void drawCount(QPixmap &pixmap, qsizetype count)
{
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font;
    font.setPixelSize(kBadge * 2 / 3);
    font.setBold(true);
    painter.setFont(font);
    const QString text = QLocale().toString(count);
    const int width = std::max(kBadge, painter.fontMetrics().horizontalAdvance(text) + kBadge / 2);
    const QRect badge(pixmap.width() - width, 0, std::min(width, pixmap.width()), kBadge);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x4d, 0xa3, 0xff));
    painter.drawRoundedRect(badge, kBadge / 2.0, kBadge / 2.0);
    painter.setPen(Qt::black);
    painter.drawText(badge, Qt::AlignCenter, text);
}

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
    if (!m_active && !m_urls.isEmpty() && isHeld() &&
        distance >= QGuiApplication::styleHints()->startDragDistance())
        run();
}

QPixmap FileDrag::carried() const
{
    QPixmap pixmap = m_picture.isNull() ? drawnSymbol()
                                        : QPixmap::fromImage(m_picture.scaled(
                                              kSize, kSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    if (m_urls.size() > 1)
        drawCount(pixmap, m_urls.size());
    return pixmap;
}

/// Opaque to its corners: without a compositor there is no other.
QPixmap FileDrag::drawnSymbol() const
{
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
