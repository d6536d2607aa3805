#include "data-control-server-protocol.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

#include <wayland-server.h>

// A compositor that has nothing but clipboards, with data control by the names that it is told:
// "CompositorStandIn ext", "CompositorStandIn zwlr ext", or none. With each copy it tells of a selection too.
// Lines of standard input: "finish" takes the seat away, "seat" brings one.

namespace {

struct Source
{
    wl_resource *resource;
    std::vector<std::string> types = {};
};

struct Session
{
    wl_display *display = wl_display_create();
    wl_global *seat = nullptr;
    std::vector<wl_resource *> devices;
    Source *copied = nullptr;
} session;

void destroy(wl_client *, wl_resource *resource) { wl_resource_destroy(resource); }

void receive(wl_client *, wl_resource *offer, const char *type, int reader)
{
    // An offer of what is not there any more gives nothing.
    if (session.copied && session.copied == wl_resource_get_user_data(offer))
        ext_data_control_source_v1_send_send(session.copied->resource, type, reader);
    close(reader);
}

wl_resource *announce(wl_resource *device, Source *source, const std::vector<std::string> &types)
{
    static const struct ext_data_control_offer_v1_interface requests
    {
        receive, destroy
    };
    auto *const offer =
        wl_resource_create(wl_resource_get_client(device), &ext_data_control_offer_v1_interface, 1, 0);
    wl_resource_set_implementation(offer, &requests, source, nullptr);
    ext_data_control_device_v1_send_data_offer(device, offer);
    for (const auto &type : types)
        ext_data_control_offer_v1_send_offer(offer, type.c_str());
    return offer;
}

void tell(wl_resource *device)
{
    auto *const source = session.copied;
    ext_data_control_device_v1_send_selection(device,
                                              source ? announce(device, source, source->types) : nullptr);
    ext_data_control_device_v1_send_primary_selection(device, announce(device, nullptr, {"text/selected"}));
}

void copy(Source *source)
{
    session.copied = source;
    std::ranges::for_each(session.devices, tell);
}

void setSelection(wl_client *, wl_resource *, wl_resource *source)
{
    if (session.copied)
        ext_data_control_source_v1_send_cancelled(session.copied->resource);
    copy(source ? static_cast<Source *>(wl_resource_get_user_data(source)) : nullptr);
}

void makeSource(wl_client *client, wl_resource *, uint32_t id)
{
    static const struct ext_data_control_source_v1_interface requests
    {
        [](wl_client *, wl_resource *source, const char *type) {
            static_cast<Source *>(wl_resource_get_user_data(source))->types.emplace_back(type);
        },
            destroy
    };
    auto *const source = new Source{wl_resource_create(client, &ext_data_control_source_v1_interface, 1, id)};
    wl_resource_set_implementation(source->resource, &requests, source, [](wl_resource *gone) {
        auto *const owned = static_cast<Source *>(wl_resource_get_user_data(gone));
        if (session.copied == owned)
            copy(nullptr);
        delete owned;
    });
}

void makeDevice(wl_client *client, wl_resource *, uint32_t id, wl_resource *)
{
    static const struct ext_data_control_device_v1_interface requests
    {
        setSelection, destroy, [](wl_client *, wl_resource *, wl_resource *) {}
    };
    auto *const device = wl_resource_create(client, &ext_data_control_device_v1_interface, 1, id);
    wl_resource_set_implementation(device, &requests, nullptr,
                                   [](wl_resource *gone) { std::erase(session.devices, gone); });
    session.devices.push_back(device);
    tell(device);
}

void addManager(const char *name)
{
    static const struct ext_data_control_manager_v1_interface requests
    {
        makeSource, makeDevice, destroy
    };
    auto *const interface = new wl_interface(ext_data_control_manager_v1_interface);
    interface->name = name;
    wl_global_create(
        session.display, interface, 1, interface, [](wl_client *client, void *bound, uint32_t, uint32_t id) {
            std::printf("%s\n", static_cast<const wl_interface *>(bound)->name);
            std::fflush(stdout);
            auto *const manager = wl_resource_create(client, static_cast<const wl_interface *>(bound), 1, id);
            wl_resource_set_implementation(manager, &requests, nullptr, nullptr);
        });
}

void addSeat()
{
    session.seat = wl_global_create(session.display, &wl_seat_interface, 1, nullptr,
                                    [](wl_client *client, void *, uint32_t, uint32_t id) {
                                        wl_resource_create(client, &wl_seat_interface, 1, id);
                                    });
}

int obey(int input, uint32_t, void *)
{
    std::array<char, 64> line{};
    const auto size = read(input, line.data(), line.size());
    if (size <= 0) {
        wl_display_terminate(session.display);
    } else if (std::string_view(line.data(), static_cast<size_t>(size)) == "seat\n") {
        addSeat();
    } else {
        wl_global_destroy(session.seat);
        std::ranges::for_each(session.devices, ext_data_control_device_v1_send_finished);
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    for (const std::string_view name : std::vector<std::string_view>(argv + 1, argv + argc))
        addManager(name == "ext" ? "ext_data_control_manager_v1" : "zwlr_data_control_manager_v1");
    addSeat();
    wl_event_loop_add_fd(wl_display_get_event_loop(session.display), STDIN_FILENO, WL_EVENT_READABLE, obey,
                         nullptr);
    if (!wl_display_add_socket_auto(session.display))
        return 1;
    wl_display_run(session.display);
    wl_display_destroy_clients(session.display);
    wl_display_destroy(session.display);
    return 0;
}
