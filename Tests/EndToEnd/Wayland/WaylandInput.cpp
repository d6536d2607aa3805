#include "EndToEnd/Wayland/WaylandInput.h"

#include "EndToEnd/Waiting.h"
#include "input-protocol.h"

#include <QElapsedTimer>

#include <array>
#include <cstring>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>

namespace {

// Seat and compositor have to agree on one; an American one is always there.
constexpr std::string_view keymap = R"map(xkb_keymap {
  xkb_keycodes { include "evdev+aliases(qwerty)" }; xkb_types { include "complete" };
  xkb_compat { include "complete" }; xkb_symbols { include "pc+us+inet(evdev)" };
};)map";

uint32_t now()
{
    static QElapsedTimer clock = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return static_cast<uint32_t>(clock.elapsed());
}

uint32_t modifier(int code)
{
    switch (code) {
    case KEY_LEFTSHIFT:
        return 1;
    case KEY_LEFTCTRL:
        return 4;
    case KEY_LEFTALT:
        return 8;
    case KEY_LEFTMETA:
        return 64;
    default:
        return 0;
    }
}

} // namespace

struct WaylandInput::Devices
{
    wl_display *display = nullptr;
    wl_registry *registry = nullptr;
    wl_seat *seat = nullptr;
    zwlr_virtual_pointer_manager_v1 *pointers = nullptr;
    zwp_virtual_keyboard_manager_v1 *keyboards = nullptr;
    org_kde_kwin_fake_input *fake = nullptr;
    zwlr_virtual_pointer_v1 *pointer = nullptr;
    zwp_virtual_keyboard_v1 *keyboard = nullptr;
    uint32_t modifiers = 0;

    template <typename Object>
    static void bind(Object *&object, wl_registry *registry, uint32_t name, const char *offered,
                     const wl_interface &interface, uint32_t version)
    {
        if (!object && std::strcmp(offered, interface.name) == 0)
            object = static_cast<Object *>(wl_registry_bind(registry, name, &interface, version));
    }

    static void global(void *data, wl_registry *registry, uint32_t name, const char *offered, uint32_t)
    {
        auto &self = *static_cast<Devices *>(data);
        bind(self.seat, registry, name, offered, wl_seat_interface, 1);
        bind(self.pointers, registry, name, offered, zwlr_virtual_pointer_manager_v1_interface, 1);
        bind(self.keyboards, registry, name, offered, zwp_virtual_keyboard_manager_v1_interface, 1);
        bind(self.fake, registry, name, offered, org_kde_kwin_fake_input_interface, 4);
    }
    static void globalRemove(void *, wl_registry *, uint32_t) {}

    void plugIn()
    {
        if (fake)
            org_kde_kwin_fake_input_authenticate(fake, "test", "test");
        if (pointers)
            pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(pointers, seat);
        if (!keyboards)
            return;
        keyboard = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(keyboards, seat);
        const int file = ::memfd_create("keymap", MFD_CLOEXEC);
        if (::write(file, keymap.data(), keymap.size() + 1) > 0)
            zwp_virtual_keyboard_v1_keymap(keyboard, 1, file, static_cast<uint32_t>(keymap.size() + 1));
        ::close(file);
    }
};

WaylandInput::WaylandInput(const QString &socket)
    : m_devices(std::make_unique<Devices>())
{
    static constexpr wl_registry_listener listener{Devices::global, Devices::globalRemove};
    m_devices->display = wl_display_connect(socket.toUtf8().constData());
    if (!m_devices->display)
        return;
    m_devices->registry = wl_display_get_registry(m_devices->display);
    wl_registry_add_listener(m_devices->registry, &listener, m_devices.get());
    sync();
    m_devices->plugIn();
    sync();
}

WaylandInput::~WaylandInput()
{
    if (m_devices->display)
        wl_display_disconnect(m_devices->display);
}

bool WaylandInput::isReady() const { return m_devices->fake || (m_devices->pointer && m_devices->keyboard); }

void WaylandInput::sync()
{
    if (m_devices->pointer)
        zwlr_virtual_pointer_v1_frame(m_devices->pointer);
    wl_display_roundtrip(m_devices->display);
}

void WaylandInput::move(QPoint place)
{
    const auto [x, y] = std::pair(static_cast<uint32_t>(place.x()), static_cast<uint32_t>(place.y()));
    if (m_devices->pointer) {
        zwlr_virtual_pointer_v1_motion_absolute(m_devices->pointer, now(), x, y,
                                                static_cast<uint32_t>(m_extent.width()),
                                                static_cast<uint32_t>(m_extent.height()));
    } else {
        org_kde_kwin_fake_input_pointer_motion_absolute(m_devices->fake, wl_fixed_from_int(place.x()),
                                                        wl_fixed_from_int(place.y()));
    }
    sync();
}

void WaylandInput::push(QPoint by)
{
    const auto [x, y] = std::pair(wl_fixed_from_int(by.x()), wl_fixed_from_int(by.y()));
    if (m_devices->pointer)
        zwlr_virtual_pointer_v1_motion(m_devices->pointer, now(), x, y);
    else
        org_kde_kwin_fake_input_pointer_motion(m_devices->fake, x, y);
    sync();
}

void WaylandInput::glide(QPoint from, QPoint to)
{
    constexpr int steps = 12;
    move(from);
    QPoint place = from;
    for (int step = 1; step <= steps; ++step) {
        const QPoint next = from + (to - from) * step / steps;
        QTest::qWait(30);
        push(next - std::exchange(place, next));
    }
}

void WaylandInput::pressButton()
{
    if (m_devices->pointer)
        zwlr_virtual_pointer_v1_button(m_devices->pointer, now(), BTN_LEFT, 1);
    else
        org_kde_kwin_fake_input_button(m_devices->fake, BTN_LEFT, 1);
    sync();
}

void WaylandInput::releaseButton()
{
    if (m_devices->pointer)
        zwlr_virtual_pointer_v1_button(m_devices->pointer, now(), BTN_LEFT, 0);
    else
        org_kde_kwin_fake_input_button(m_devices->fake, BTN_LEFT, 0);
    sync();
}

void WaylandInput::click(QPoint place)
{
    move(place);
    pressButton();
    releaseButton();
}

void WaylandInput::key(int code, bool down)
{
    const auto key = static_cast<uint32_t>(code);
    if (m_devices->keyboard) {
        zwp_virtual_keyboard_v1_key(m_devices->keyboard, now(), key, down ? 1 : 0);
        const uint32_t bit = modifier(code);
        m_devices->modifiers = down ? m_devices->modifiers | bit : m_devices->modifiers & ~bit;
        zwp_virtual_keyboard_v1_modifiers(m_devices->keyboard, m_devices->modifiers, 0, 0, 0);
    } else {
        org_kde_kwin_fake_input_keyboard_key(m_devices->fake, key, down ? 1 : 0);
    }
    sync();
}

void WaylandInput::tap(int code)
{
    key(code, true);
    QTest::qWait(30);
    key(code, false);
}
