#pragma once

#include "NotchKit/Platform/FullScreenWindows.h"

#include <QAbstractNativeEventFilter>
#include <QList>
#include <QSet>
#include <QTimer>

#include <xcb/xcb.h>

namespace Kestrune {

class X11Desktop;

/// The displays on which the topmost window is full screen, as the window manager lists and marks them
/// (_NET_WM_STATE).
class X11FullScreenWindows : public FullScreenWindows, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    /// `desktop` outlives it.
    explicit X11FullScreenWindows(const X11Desktop &desktop);

    bool cover(const QString &display) const override { return m_covered.contains(display); }

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    void read();
    void watch(const QList<xcb_window_t> &windows);

    xcb_atom_t m_state;
    QTimer m_settle; ///< One change comes as a burst of events.
    QSet<xcb_window_t> m_watched;
    QSet<QString> m_covered;
};

} // namespace Kestrune
