#pragma once

#include "EndToEnd/Waiting.h"
#include "EndToEnd/X11.h"

#include <X11/keysym.h>
#include <xcb/xcb_keysyms.h>
#include <xcb/xtest.h>

/// The pointer and the keyboard of a display, moved and pressed as a person would. Every call has reached
/// the server when it returns.
struct Input
{
    explicit Input(const X11 &x)
        : m_x(x)
        , m_symbols(xcb_key_symbols_alloc(x.connection()))
    {}
    ~Input() { xcb_key_symbols_free(m_symbols); }
    Q_DISABLE_COPY_MOVE(Input)

    void move(QPoint place) { fake(XCB_MOTION_NOTIFY, 0, place); }
    void pressButton(quint8 button = XCB_BUTTON_INDEX_1) { fake(XCB_BUTTON_PRESS, button); }
    void releaseButton(quint8 button = XCB_BUTTON_INDEX_1) { fake(XCB_BUTTON_RELEASE, button); }
    void click(QPoint place)
    {
        move(place);
        pressButton();
        releaseButton();
    }

    /// Presses there and moves to `to` as a hand does, without letting go.
    void drag(QPoint from, QPoint to)
    {
        move(from);
        QTest::qWait(100);
        pressButton();
        constexpr int kSteps = 12;
        for (int step = 1; step <= kSteps; ++step) {
            move(from + (to - from) * step / kSteps);
            QTest::qWait(25);
        }
        QTest::qWait(300);
    }

    void pressKey(xcb_keysym_t key) { fake(XCB_KEY_PRESS, code(key)); }
    void releaseKey(xcb_keysym_t key) { fake(XCB_KEY_RELEASE, code(key)); }
    void tap(xcb_keysym_t key)
    {
        pressKey(key);
        releaseKey(key);
    }
    /// Latin-1.
    void type(const QByteArray &text)
    {
        for (const char character : text) {
            // Latin-1 characters are their own key symbols; those in the second column need Shift.
            const auto symbol = static_cast<xcb_keysym_t>(static_cast<unsigned char>(character));
            const bool shifted = xcb_key_symbols_get_keysym(m_symbols, code(symbol), 0) != symbol;
            if (shifted)
                pressKey(XK_Shift_L);
            tap(symbol);
            if (shifted)
                releaseKey(XK_Shift_L);
        }
    }

    /// The combination that opens and closes the notch, held for `milliseconds`; a person holds it a while.
    void hotKey(int milliseconds = 60)
    {
        const QList<xcb_keysym_t> keys = {XK_Control_L, XK_Alt_L, XK_Super_L, XK_n};
        for (const auto key : keys)
            pressKey(key);
        QTest::qWait(milliseconds);
        for (auto key = keys.crbegin(); key != keys.crend(); ++key)
            releaseKey(*key);
    }

    /// The modifier and button bits in force: XCB_MOD_MASK_LOCK and the like.
    quint16 state() const
    {
        const auto cookie = xcb_query_pointer(m_x.connection(), m_x.root());
        const auto reply = owned(xcb_query_pointer_reply(m_x.connection(), cookie, nullptr));
        return reply ? reply->mask : quint16{0};
    }

    /// The keys of `code` follow a new layout from now on.
    void readLayout()
    {
        xcb_key_symbols_free(m_symbols);
        m_symbols = xcb_key_symbols_alloc(m_x.connection());
    }

    xcb_keycode_t code(xcb_keysym_t key) const
    {
        const auto codes = owned(xcb_key_symbols_get_keycode(m_symbols, key));
        if (!codes)
            qFatal("the keyboard has no key for symbol %u", key);
        return *codes;
    }

private:
    void fake(quint8 type, quint8 detail, QPoint place = {})
    {
        xcb_test_fake_input(m_x.connection(), type, detail, XCB_CURRENT_TIME, m_x.root(),
                            static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y()), 0);
        m_x.sync();
    }
    const X11 &m_x;
    xcb_key_symbols_t *m_symbols;
};
