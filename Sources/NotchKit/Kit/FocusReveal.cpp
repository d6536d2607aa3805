#include "FocusReveal.h"

#include <QQuickWindow>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr double kAround = 8; // points beside it that are in sight too

} // namespace

void FocusReveal::setFlickable(QQuickItem *flickable)
{
    if (m_flickable == flickable)
        return;
    if (m_flickable)
        m_flickable->disconnect(this);
    m_flickable = flickable;
    if (flickable)
        connect(flickable, &QQuickItem::windowChanged, this, &FocusReveal::watch);
    watch(flickable ? flickable->window() : nullptr);
    Q_EMIT flickableChanged();
}

void FocusReveal::watch(QQuickWindow *window)
{
    disconnect(m_focus);
    if (window)
        m_focus = connect(window, &QQuickWindow::activeFocusItemChanged, this, &FocusReveal::reveal);
}

double FocusReveal::revealing(double at, double length, double first, double last)
{
    return std::min(std::max(at, last - length), first);
}

void FocusReveal::reveal()
{
    const QQuickWindow *window = m_flickable ? m_flickable->window() : nullptr;
    QQuickItem *item = window ? window->activeFocusItem() : nullptr;
    auto *content = m_flickable ? m_flickable->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!item || !content || !content->isAncestorOf(item))
        return;
    const QRectF place = item->mapRectToItem(content, item->boundingRect());
    const auto scroll = [&](const char *position, const char *origin, const char *size, double length,
                            double first, double last) {
        const double begin = m_flickable->property(origin).toDouble();
        const double end = begin + m_flickable->property(size).toDouble() - length;
        if (end <= begin)
            return;
        const double at = m_flickable->property(position).toDouble();
        m_flickable->setProperty(
            position, std::clamp(revealing(at, length, first - kAround, last + kAround), begin, end));
    };
    scroll("contentX", "originX", "contentWidth", m_flickable->width(), place.left(), place.right());
    scroll("contentY", "originY", "contentHeight", m_flickable->height(), place.top(), place.bottom());
}

} // namespace Kestrune
