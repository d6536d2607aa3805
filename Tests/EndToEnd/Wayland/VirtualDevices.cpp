#include "EndToEnd/Wayland/InputDevices.h"
#include "EndToEnd/Wayland/WaylandConnection.h"
#include "input-protocol.h"

#include <QElapsedTimer>

#include <string_view>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// Seat and compositor have to agree on one; an American one is always there.
constexpr std::string_view keymap = R"map(xkb_keymap {
  xkb_keycodes { include "evdev+aliases(qwerty)" }; xkb_types { include "complete" };
  xkb_compat { include "complete" }; xkb_symbols { include "pc+us+inet(evdev)" };
};)map";

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

class VirtualDevices : public InputDevices
{
public:
    explicit VirtualDevices(const QString &socket)
        : m_connection(socket)
    {
        m_clock.start();
        auto *seat = m_connection.bind<wl_seat>(wl_seat_interface, 1);
        if (auto *pointers = m_connection.bind<zwlr_virtual_pointer_manager_v1>(
                zwlr_virtual_pointer_manager_v1_interface, 1))
            m_pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(pointers, seat);
        if (auto *keyboards = m_connection.bind<zwp_virtual_keyboard_manager_v1>(
                zwp_virtual_keyboard_manager_v1_interface, 1)) {
            m_keyboard = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(keyboards, seat);
            giveKeymap();
        }
    }

    bool areReady() const override { return m_pointer && m_keyboard; }

    void move(QPoint place, QSize extent) override
    {
        zwlr_virtual_pointer_v1_motion_absolute(
            m_pointer, now(), static_cast<uint32_t>(place.x()), static_cast<uint32_t>(place.y()),
            static_cast<uint32_t>(extent.width()), static_cast<uint32_t>(extent.height()));
        finishFrame();
    }
    void push(QPoint by) override
    {
        zwlr_virtual_pointer_v1_motion(m_pointer, now(), wl_fixed_from_int(by.x()),
                                       wl_fixed_from_int(by.y()));
        finishFrame();
    }
    void button(bool down) override
    {
        zwlr_virtual_pointer_v1_button(m_pointer, now(), BTN_LEFT, down ? 1 : 0);
        finishFrame();
    }
    void key(int code, bool down) override
    {
        zwp_virtual_keyboard_v1_key(m_keyboard, now(), static_cast<uint32_t>(code), down ? 1 : 0);
        const uint32_t bit = modifier(code);
        m_modifiers = down ? m_modifiers | bit : m_modifiers & ~bit;
        zwp_virtual_keyboard_v1_modifiers(m_keyboard, m_modifiers, 0, 0, 0);
        m_connection.sync();
    }

private:
    uint32_t now() const { return static_cast<uint32_t>(m_clock.elapsed()); }
    void finishFrame()
    {
        zwlr_virtual_pointer_v1_frame(m_pointer);
        m_connection.sync();
    }
    void giveKeymap()
    {
        const int file = ::memfd_create("keymap", MFD_CLOEXEC);
        if (::write(file, keymap.data(), keymap.size() + 1) > 0)
            zwp_virtual_keyboard_v1_keymap(m_keyboard, 1, file, static_cast<uint32_t>(keymap.size() + 1));
        m_connection.sync();
        ::close(file);
    }

    WaylandConnection m_connection;
    zwlr_virtual_pointer_v1 *m_pointer = nullptr;
    zwp_virtual_keyboard_v1 *m_keyboard = nullptr;
    uint32_t m_modifiers = 0;
    QElapsedTimer m_clock;
};

} // namespace

std::unique_ptr<InputDevices> makeVirtualDevices(const QString &socket)
{
    return std::make_unique<VirtualDevices>(socket);
}
