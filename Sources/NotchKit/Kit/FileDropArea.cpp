#include "FileDropArea.h"

#include <QMimeData>

namespace Kestrune {

namespace {

/// Never a move: the files stay where they are.
void acceptReference(QDropEvent &event)
{
    const bool copies = event.possibleActions().testFlag(Qt::CopyAction);
    event.setDropAction(copies ? Qt::CopyAction : Qt::LinkAction);
    event.accept();
}

} // namespace

FileDropArea::FileDropArea(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemAcceptsDrops);
}

void FileDropArea::dragEnterEvent(QDragEnterEvent *event)
{
    m_offered = !event->source() && event->mimeData()->hasUrls();
    answer(*event);
}

void FileDropArea::dragMoveEvent(QDragMoveEvent *event) { answer(*event); }

void FileDropArea::answer(QDropEvent &event)
{
    if (m_offered)
        Q_EMIT moved();
    setTargeted(m_offered && !m_refused);
    if (m_targeted)
        acceptReference(event);
    else
        event.ignore();
}

void FileDropArea::dragLeaveEvent(QDragLeaveEvent *)
{
    m_offered = false;
    setTargeted(false);
}

void FileDropArea::dropEvent(QDropEvent *event)
{
    answer(*event);
    if (m_targeted)
        Q_EMIT filesDropped();
    m_offered = false;
    setTargeted(false);
}

void FileDropArea::setRefused(bool refused)
{
    m_refused = refused;
    setTargeted(m_offered && !m_refused);
}

void FileDropArea::setTargeted(bool targeted)
{
    if (std::exchange(m_targeted, targeted) != targeted)
        Q_EMIT targetedChanged();
}

} // namespace Kestrune
