#pragma once

#include "Async/Pledge.h"
#include "Desktop/Pasteboard/ReadingPatience.h"
#include "NotchKit/Platform/DragPasteboard.h"

#include <QAbstractNativeEventFilter>
#include <QTimer>

#include <optional>

#include <xcb/xcb.h>

namespace Kestrune {

/// Follows the XDND messages that other programs send to this program's windows, and asks the source for its
/// list of files as soon as it is over one of them, without waiting for it. A drag within the program sends
/// no such messages. Protocol: https://www.freedesktop.org/wiki/Specifications/XDND/ (version 5).
class X11DragPasteboard : public DragPasteboard, private QAbstractNativeEventFilter
{
public:
    X11DragPasteboard();
    ~X11DragPasteboard() override;

    bool holdsFileUrls() const override { return m_over && !m_files.isEmpty(); }
    QFuture<QList<QUrl>> fileUrls() override;

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    void handleMessage(const xcb_client_message_event_t &message);
    bool handleAnswer(const xcb_selection_notify_event_t &answer);
    void handleProperty(const xcb_property_notify_event_t &change);
    void sourceDied();
    void enter(const xcb_client_message_event_t &message);
    bool offersFiles(const xcb_client_message_event_t &message) const;
    void ask(xcb_timestamp_t time);
    void leave();
    void takeProperty();
    void waitOn();
    void finish(const QList<QUrl> &files);

    uint8_t m_selectionEvent = 0; ///< 0 without XFixes.
    xcb_window_t m_target = XCB_WINDOW_NONE;
    xcb_window_t m_source = XCB_WINDOW_NONE;
    bool m_over = false;
    bool m_asked = false;
    bool m_incremental = false;
    QByteArray m_list; ///< What has arrived of a list in parts.
    QList<QUrl> m_files;
    std::optional<Pledge<QList<QUrl>>> m_answer; ///< Of the drag that is over, or was dropped last.
    bool m_answered = true;
    ReadingPatience m_patience;
    QTimer m_deadline;
};

} // namespace Kestrune
