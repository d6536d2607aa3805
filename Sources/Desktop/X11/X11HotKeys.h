#pragma once

#include "NotchKit/Platform/HotKeys.h"

#include <QAbstractNativeEventFilter>
#include <QTimer>

#include <vector>

#include <xcb/xcb.h>

namespace Kestrune {

/// Hot keys as passive key grabs on the root window, one for each state of the lock keys. They follow the
/// layout of the keyboard.
class X11HotKeys : public HotKeys, private QAbstractNativeEventFilter
{
public:
    X11HotKeys();
    ~X11HotKeys() override;

    void installHandler(Handler handler) override;
    bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) override;
    void unregisterHotKey(HotKeyIdentity identity) override;

private:
    struct Grab
    {
        HotKeyIdentity identity;
        quint32 keyCode;           ///< As registered.
        uint16_t modifiers;        ///< X modifier mask without lock keys.
        xcb_keycode_t keycode = 0; ///< 0 while the keyboard has no such key.
        bool down = false;
        xcb_timestamp_t released = XCB_CURRENT_TIME; ///< Of the last release; a repeat has the same time.
    };

    bool nativeEventFilter(const QByteArray &type, void *message, qintptr *result) override;
    bool handleKey(const xcb_key_press_event_t &event, bool press);
    bool grab(Grab &grab);
    void ungrab(const Grab &grab);
    void regrabAll();

    Handler m_handler;
    std::vector<Grab> m_grabs;
    uint8_t m_keyboardEvent = 0; ///< Of the keyboard extension; 0 without it.
    QTimer m_settle;             ///< A new layout comes as a burst of events.
};

} // namespace Kestrune
