#include "EndToEnd/Wayland/InputDevices.h"
#include "EndToEnd/Wayland/WaylandConnection.h"
#include "input-protocol.h"

#include <linux/input-event-codes.h>

namespace {

class FakeInput : public InputDevices
{
public:
    explicit FakeInput(const QString &socket)
        : m_connection(socket)
        , m_fake(m_connection.bind<org_kde_kwin_fake_input>(org_kde_kwin_fake_input_interface, 4))
    {
        if (m_fake)
            org_kde_kwin_fake_input_authenticate(m_fake, "test", "test");
    }

    bool areReady() const override { return m_fake; }

    void move(QPoint place, QSize) override
    {
        org_kde_kwin_fake_input_pointer_motion_absolute(m_fake, wl_fixed_from_int(place.x()),
                                                        wl_fixed_from_int(place.y()));
        m_connection.sync();
    }
    void push(QPoint by) override
    {
        org_kde_kwin_fake_input_pointer_motion(m_fake, wl_fixed_from_int(by.x()), wl_fixed_from_int(by.y()));
        m_connection.sync();
    }
    void button(bool down) override
    {
        org_kde_kwin_fake_input_button(m_fake, BTN_LEFT, down ? 1 : 0);
        m_connection.sync();
    }
    void key(int code, bool down) override
    {
        org_kde_kwin_fake_input_keyboard_key(m_fake, static_cast<uint32_t>(code), down ? 1 : 0);
        m_connection.sync();
    }

private:
    WaylandConnection m_connection;
    org_kde_kwin_fake_input *m_fake;
};

} // namespace

std::unique_ptr<InputDevices> makeFakeInput(const QString &socket)
{
    return std::make_unique<FakeInput>(socket);
}
