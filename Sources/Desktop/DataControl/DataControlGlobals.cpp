#include "DataControlGlobals.h"

#include "data-control-protocol.h"

#include <string_view>

#include <wayland-client.h>

namespace Kestrune {

namespace {

/// The same protocol by its former name. What a manager makes is told apart by nothing but that name, so all
/// else is spoken to by the present ones.
const wl_interface &formerManager()
{
    static const wl_interface former = [] {
        wl_interface interface = ext_data_control_manager_v1_interface;
        interface.name = "zwlr_data_control_manager_v1";
        return interface;
    }();
    return former;
}

} // namespace

DataControlGlobals::DataControlGlobals(wl_display *display)
    : m_registry(wl_display_get_registry(display))
{
    static constexpr wl_registry_listener listener{&DataControlGlobals::added, &DataControlGlobals::removed};
    wl_registry_add_listener(m_registry, &listener, this);
}

DataControlGlobals::~DataControlGlobals()
{
    if (m_manager)
        ext_data_control_manager_v1_destroy(m_manager);
    wl_registry_destroy(m_registry);
}

void DataControlGlobals::added(void *self, wl_registry *, uint32_t name, const char *interface, uint32_t)
{
    auto &globals = *static_cast<DataControlGlobals *>(self);
    const std::string_view called = interface;
    if (called == ext_data_control_manager_v1_interface.name)
        globals.m_present = name;
    else if (called == formerManager().name)
        globals.m_former = name;
    else if (called == wl_seat_interface.name)
        globals.m_seats.push_back(name);
}

void DataControlGlobals::removed(void *self, wl_registry *, uint32_t name)
{
    std::erase(static_cast<DataControlGlobals *>(self)->m_seats, name);
}

ext_data_control_manager_v1 *DataControlGlobals::manager()
{
    if (!m_manager && m_present != 0)
        m_manager = static_cast<ext_data_control_manager_v1 *>(
            wl_registry_bind(m_registry, m_present, &ext_data_control_manager_v1_interface, 1));
    else if (!m_manager)
        m_manager = static_cast<ext_data_control_manager_v1 *>(
            wl_registry_bind(m_registry, m_former, &formerManager(), 1));
    return m_manager;
}

ext_data_control_device_v1 *DataControlGlobals::takeDevice()
{
    if (m_seats.empty() || !hasManager())
        return nullptr;
    auto *const seat =
        static_cast<wl_seat *>(wl_registry_bind(m_registry, m_seats.front(), &wl_seat_interface, 1));
    m_seats.erase(m_seats.begin());
    auto *const device = ext_data_control_manager_v1_get_data_device(manager(), seat);
    wl_seat_destroy(seat);
    return device;
}

ext_data_control_source_v1 *DataControlGlobals::makeSource()
{
    return ext_data_control_manager_v1_create_data_source(manager());
}

} // namespace Kestrune
