#pragma once

#include <QAbstractNativeEventFilter>
#include <QList>
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

    /// Whether a window that no window manager knows gets what is typed once it has the focus. KWin, which
    /// the program is a guest of, would send the keys to nobody.
    static bool givesKeyboard();

    /// Whether the window manager says that one of its windows is active; of a guest's it is none while a
    /// window of Wayland is.
    static bool hasActiveWindow();

    /// What the window manager manages, from the bottom up.
    static QList<xcb_window_t> managedWindows();

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
