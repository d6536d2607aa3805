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
    const bool wanted = !event->source() && event->mimeData()->hasUrls();
    setTargeted(wanted);
    if (wanted)
        acceptReference(*event);
    else
        event->ignore();
}

void FileDropArea::dragMoveEvent(QDragMoveEvent *event)
{
    if (m_targeted)
        acceptReference(*event);
    else
        event->ignore();
}

void FileDropArea::dragLeaveEvent(QDragLeaveEvent *) { setTargeted(false); }

void FileDropArea::dropEvent(QDropEvent *event)
{
    if (!m_targeted)
        return;
    acceptReference(*event);
    Q_EMIT filesDropped();
    setTargeted(false);
}

void FileDropArea::setTargeted(bool targeted)
{
    if (std::exchange(m_targeted, targeted) != targeted)
        Q_EMIT targetedChanged();
}

} // namespace Kestrune
