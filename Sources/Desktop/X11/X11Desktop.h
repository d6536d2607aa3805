#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QRect>

#include <optional>

#include <xcb/xcb.h>
#include <xcb/xfixes.h>

namespace Kestrune {

/// What the panels need to know of the window manager and the compositor. Main thread only.
class X11Desktop : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit X11Desktop(QObject *parent = nullptr);
    ~X11Desktop() override;

    /// A compositor runs, so that transparent pixels show what lies beneath.
    bool hasCompositor() const { return m_hasCompositor; }

    /// The top-level X window that holds the topmost managed window, if it is above `window`.
    static std::optional<xcb_window_t> managedFrameAbove(xcb_window_t window);

    /// Tells the compositor that it has to draw these pixels of `window` anew.
    void reportDamage(xcb_window_t window, const QRect &pixels) const;

Q_SIGNALS:
    void compositorChanged();

    /// The window manager restacked its windows, changed the active one or the desktop.
    void stackingChanged();

private:
    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    void checkCompositor();

    xcb_atom_t m_compositorSelection;
    uint8_t m_selectionEvent = 0;
    bool m_hasCompositor = false;
    xcb_xfixes_region_t m_damaged = XCB_NONE; ///< For `reportDamage`; none where the X server cannot.
};

} // namespace Kestrune
