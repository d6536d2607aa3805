#include "X11HotKeys.h"

#include "NotchKit/Platform/KeyCombination.h"
#include "X11Connection.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>

#include <xcb/xcb_keysyms.h>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(keysLog, "kestrune.keys", QtWarningMsg)

constexpr quint32 kCommand = 256;
constexpr quint32 kShift = 512;
constexpr quint32 kOption = 2048;
constexpr quint32 kControl = 4096;
constexpr xcb_keysym_t kNumLock = 0xff7f;
constexpr xcb_keysym_t kScrollLock = 0xff14;
constexpr uint16_t kAllModifiers = 0xff;
constexpr auto kLayoutSettling = std::chrono::milliseconds(50);

struct FreeSymbols
{
    void operator()(xcb_key_symbols_t *symbols) const { xcb_key_symbols_free(symbols); }
};
using Symbols = std::unique_ptr<xcb_key_symbols_t, FreeSymbols>;

xcb_keycode_t keycodeFor(xcb_key_symbols_t *symbols, xcb_keysym_t keysym)
{
    const X11::Reply<xcb_keycode_t> codes(xcb_key_symbols_get_keycode(symbols, keysym));
    return codes ? *codes : static_cast<xcb_keycode_t>(XCB_NO_SYMBOL);
}

xcb_keycode_t resolve(quint32 keyCode)
{
    const auto key = KeyCombination::placeOf(keyCode);
    if (!key)
        return 0;
    const Symbols symbols(xcb_key_symbols_alloc(X11::connection()));
    const xcb_keycode_t code = keycodeFor(symbols.get(), key->symbol);
    return code != XCB_NO_SYMBOL ? code : key->place;
}

uint16_t modifierMask(quint32 modifiers)
{
    uint16_t mask = 0;
    if (modifiers & kCommand)
        mask |= XCB_MOD_MASK_4;
    if (modifiers & kShift)
        mask |= XCB_MOD_MASK_SHIFT;
    if (modifiers & kOption)
        mask |= XCB_MOD_MASK_1;
    if (modifiers & kControl)
        mask |= XCB_MOD_MASK_CONTROL;
    return mask;
}

/// The modifier bit that the key of `keysym` sets, 0 for none.
uint16_t modifierOf(xcb_key_symbols_t *symbols, xcb_keysym_t keysym)
{
    const xcb_keycode_t code = keycodeFor(symbols, keysym);
    const X11::Reply<xcb_get_modifier_mapping_reply_t> mapping(xcb_get_modifier_mapping_reply(
        X11::connection(), xcb_get_modifier_mapping(X11::connection()), nullptr));
    if (!mapping || code == XCB_NO_SYMBOL)
        return 0;
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(mapping.get());
    const int perModifier = mapping->keycodes_per_modifier;
    for (int i = 0; i < 8 * perModifier; ++i) {
        if (codes[i] == code)
            return static_cast<uint16_t>(1 << (i / perModifier));
    }
    return 0;
}

/// Every combination of the lock modifiers, none of them included.
std::vector<uint16_t> lockCombinations()
{
    const Symbols symbols(xcb_key_symbols_alloc(X11::connection()));
    const std::array<uint16_t, 3> locks{XCB_MOD_MASK_LOCK, modifierOf(symbols.get(), kNumLock),
                                        modifierOf(symbols.get(), kScrollLock)};
    std::vector<uint16_t> combinations{0};
    for (const uint16_t lock : locks) {
        if (lock == 0)
            continue;
        const auto without = combinations;
        for (const uint16_t combination : without)
            combinations.push_back(combination | lock);
    }
    return combinations;
}

/// Qt asks for the events of the keyboard extension, and whoever does is not told of new mappings otherwise.
uint8_t keyboardEvent()
{
    constexpr std::string_view name = "XKEYBOARD";
    const auto cookie = xcb_query_extension(X11::connection(), name.size(), name.data());
    const X11::Reply<xcb_query_extension_reply_t> reply(
        xcb_query_extension_reply(X11::connection(), cookie, nullptr));
    return reply && reply->present ? reply->first_event : uint8_t{0};
}

/// By the kind of an event of the keyboard extension (XKBproto): NewKeyboardNotify or MapNotify.
bool isNewLayout(uint8_t kind)
{
    constexpr uint8_t newest = 1;
    return kind <= newest;
}

uint16_t lockMask() { return lockCombinations().back(); }

} // namespace

X11HotKeys::X11HotKeys()
    : m_keyboardEvent(keyboardEvent())
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(kLayoutSettling);
    m_settle.callOnTimeout([this] { regrabAll(); });
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11HotKeys::~X11HotKeys()
{
    for (const Grab &held : m_grabs)
        ungrab(held);
}

void X11HotKeys::installHandler(Handler handler) { m_handler = std::move(handler); }

bool X11HotKeys::registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity)
{
    Grab wanted{identity, keyCode, modifierMask(modifiers)};
    if (!grab(wanted))
        return false;
    m_grabs.push_back(wanted);
    return true;
}

void X11HotKeys::unregisterHotKey(HotKeyIdentity identity)
{
    std::erase_if(m_grabs, [&](const Grab &held) {
        if (held.identity != identity)
            return false;
        ungrab(held);
        return true;
    });
}

bool X11HotKeys::grab(Grab &wanted)
{
    wanted.keycode = resolve(wanted.keyCode);
    if (wanted.keycode == 0) {
        qCInfo(keysLog, "no key of the keyboard stands for code %u", wanted.keyCode);
        return false;
    }
    auto *connection = X11::connection();
    std::vector<xcb_void_cookie_t> cookies;
    for (const uint16_t locks : lockCombinations()) {
        cookies.push_back(xcb_grab_key_checked(connection, false, X11::root(), wanted.modifiers | locks,
                                               wanted.keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool taken = false;
    for (const auto cookie : cookies) {
        const X11::Reply<xcb_generic_error_t> error(xcb_request_check(connection, cookie));
        taken = taken || error;
    }
    if (taken)
        ungrab(wanted);
    qCInfo(keysLog, "key %d with modifiers %d %s", wanted.keycode, wanted.modifiers,
           taken ? "is another program's" : "is ours");
    return !taken;
}

void X11HotKeys::ungrab(const Grab &held)
{
    if (held.keycode == 0)
        return;
    for (const uint16_t locks : lockCombinations())
        xcb_ungrab_key(X11::connection(), held.keycode, X11::root(), held.modifiers | locks);
    xcb_flush(X11::connection());
}

void X11HotKeys::regrabAll()
{
    for (Grab &held : m_grabs) {
        ungrab(held);
        grab(held);
    }
}

bool X11HotKeys::nativeEventFilter(const QByteArray &, void *message, qintptr *)
{
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type) {
    case XCB_KEY_PRESS:
    case XCB_KEY_RELEASE:
        return handleKey(*reinterpret_cast<const xcb_key_press_event_t *>(event),
                         event->response_type == XCB_KEY_PRESS);
    case XCB_MAPPING_NOTIFY:
        m_settle.start();
        break;
    default:
        if (m_keyboardEvent != 0 && event->response_type == m_keyboardEvent && isNewLayout(event->pad0))
            m_settle.start();
        break;
    }
    return false;
}

bool X11HotKeys::handleKey(const xcb_key_press_event_t &event, bool press)
{
    if (event.event != X11::root())
        return false;
    const int modifiers = event.state & kAllModifiers & ~lockMask();
    bool isOurs = false;
    for (Grab &held : m_grabs) {
        if (held.keycode != event.detail)
            continue;
        isOurs = true;
        // A key held down repeats as presses, with or without releases at the very same time between them.
        const bool repeated = std::exchange(held.down, press) || event.time == held.released;
        if (!press)
            held.released = event.time;
        if (press && modifiers == held.modifiers && !repeated && m_handler)
            m_handler(held.identity);
    }
    return isOurs;
}

} // namespace Kestrune
