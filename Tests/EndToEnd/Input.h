#pragma once

#include "EndToEnd/X11.h"

#include <X11/keysym.h>
#include <xcb/xcb_keysyms.h>

/// The pointer and the keyboard of a display, moved and pressed as a person would. Every call has reached
/// the server when it returns.
struct Input
{
    explicit Input(const X11 &x);
    ~Input();
    Q_DISABLE_COPY_MOVE(Input)

    void move(QPoint place);
    void pressButton(quint8 button = XCB_BUTTON_INDEX_1);
    void releaseButton(quint8 button = XCB_BUTTON_INDEX_1);
    void click(QPoint place);

    void pressKey(xcb_keysym_t key);
    void releaseKey(xcb_keysym_t key);
    void tap(xcb_keysym_t key);
    void type(const QByteArray &text); ///< Latin-1

    /// The combination that opens and closes the notch, held for `milliseconds`; a person holds it a while.
    void hotKey(int milliseconds = 60);

    /// The modifier and button bits in force: XCB_MOD_MASK_LOCK and the like.
    quint16 state() const;

private:
    void fake(quint8 type, quint8 detail, QPoint place = {});
    xcb_keycode_t code(xcb_keysym_t key) const;

    const X11 &m_x;
    xcb_key_symbols_t *m_symbols;
};
