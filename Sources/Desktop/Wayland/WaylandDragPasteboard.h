#pragma once

#include "Async/Pledge.h"
#include "DragOffers.h"
#include "NotchKit/Platform/DragPasteboard.h"

#include <QSocketNotifier>
#include <QTimer>
#include <QWindow>

#include <memory>
#include <optional>

namespace Kestrune {

class WaylandPointer;

/// The files of a drag, read without waiting as soon as it is over one of the windows: Qt would wait for the
/// source on the main thread.
///
/// Some compositors tell only the first data device of a program of a drag, which is Qt's. There the list is
/// read when it is dropped, by Qt, which waits up to a second for a source that hangs.
class WaylandDragPasteboard : public QObject, public DragPasteboard
{
    Q_OBJECT

public:
    /// Qt runs on Wayland. `pointer` knows of drags that began here, and outlives the object.
    explicit WaylandDragPasteboard(const WaylandPointer &pointer);
    ~WaylandDragPasteboard() override;

    /// Follows the drags that Qt tells `window` of.
    void watch(QWindow &window) { window.installEventFilter(this); }

    bool holdsFileUrls() const override { return m_over && (m_byQt || !m_files.isEmpty()); }
    QFuture<QList<QUrl>> fileUrls() override;

private:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void enter();
    void leave();
    void read();
    void finish(const QList<QUrl> &files);
    void stopReading();

    const WaylandPointer &m_pointer;
    DragOffers m_offers;
    bool m_over = false;
    bool m_byQt = false; ///< Nobody but Qt has been told of this drag.
    int m_pipe = -1;
    std::unique_ptr<QSocketNotifier> m_readable;
    QByteArray m_list; ///< What has arrived.
    QList<QUrl> m_files;
    std::optional<Pledge<QList<QUrl>>> m_answer; ///< Of the drag that is over, or was dropped last.
    QTimer m_patience;
};

} // namespace Kestrune
