#pragma once

#include <QAbstractNativeEventFilter>
#include <QHash>
#include <QObject>

#include <functional>

#include <xcb/xcb.h>

class QWindow;

namespace Kestrune {

/// The frames of the displays, as the X server's Present extension tells of them: one event for each time
/// that it is asked. A guest's server, which has no display of its own, is not asked. Main thread only.
class X11Frames : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11Frames(QObject *parent = nullptr);

    /// Calls `then` once, with the next frame of the display that shows most of `window`, which has been
    /// created; what was asked for it before is forgotten. False where the server does not tell.
    bool await(QWindow &window, std::function<void()> then);

private:
    struct Waiting
    {
        uint32_t serial = 0;
        std::function<void()> then;
    };

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    Waiting &listenTo(QWindow &window);

    uint8_t m_opcode = 0; ///< Of the extension; none without it.
    uint32_t m_serial = 0;
    QHash<xcb_window_t, Waiting> m_waiting; ///< The windows that are listened to.
};

} // namespace Kestrune
