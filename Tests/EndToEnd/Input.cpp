#include "EndToEnd/Input.h"

#include <QTest>

#include <xcb/xtest.h>

#include <cstdlib>

Input::Input(const X11 &x)
    : m_x(x)
    , m_symbols(xcb_key_symbols_alloc(x.connection()))
{}

Input::~Input() { xcb_key_symbols_free(m_symbols); }

void Input::move(QPoint place) { fake(XCB_MOTION_NOTIFY, 0, place); }

void Input::pressButton(quint8 button) { fake(XCB_BUTTON_PRESS, button); }

void Input::releaseButton(quint8 button) { fake(XCB_BUTTON_RELEASE, button); }

void Input::click(QPoint place)
{
    move(place);
    pressButton();
    releaseButton();
}

void Input::pressKey(xcb_keysym_t key) { fake(XCB_KEY_PRESS, code(key)); }

void Input::releaseKey(xcb_keysym_t key) { fake(XCB_KEY_RELEASE, code(key)); }

void Input::tap(xcb_keysym_t key)
{
    pressKey(key);
    releaseKey(key);
}

void Input::type(const QByteArray &text)
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

void Input::hotKey(int milliseconds)
{
    const QList<xcb_keysym_t> keys = {XK_Control_L, XK_Alt_L, XK_Super_L, XK_n};
    for (const auto key : keys)
        pressKey(key);
    QTest::qWait(milliseconds);
    for (auto key = keys.crbegin(); key != keys.crend(); ++key)
        releaseKey(*key);
}

quint16 Input::state() const
{
    const auto cookie = xcb_query_pointer(m_x.connection(), m_x.root());
    auto *reply = xcb_query_pointer_reply(m_x.connection(), cookie, nullptr);
    const quint16 mask = reply ? reply->mask : quint16{0};
    std::free(reply);
    return mask;
}

void Input::fake(quint8 type, quint8 detail, QPoint place)
{
    xcb_test_fake_input(m_x.connection(), type, detail, XCB_CURRENT_TIME, m_x.root(),
                        static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y()), 0);
    m_x.sync();
}

xcb_keycode_t Input::code(xcb_keysym_t key) const
{
    xcb_keycode_t *codes = xcb_key_symbols_get_keycode(m_symbols, key);
    if (!codes)
        qFatal("the keyboard has no key for symbol %u", key);
    const xcb_keycode_t first = codes[0];
    std::free(codes);
    return first;
}
