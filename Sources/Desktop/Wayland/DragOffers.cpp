#include "DragOffers.h"

#include "NotchKit/Platform/Pasteboard.h"

#include <QGuiApplication>

#include <array>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>
#include <wayland-client.h>

namespace Kestrune {

namespace {

constexpr uint32_t kManagerVersion = 3;

QNativeInterface::QWaylandApplication *qtConnection()
{
    return qGuiApp->nativeInterface<QNativeInterface::QWaylandApplication>();
}

void destroy(wl_data_offer *offer)
{
    if (offer)
        wl_data_offer_destroy(offer);
}

} // namespace

/// What the compositor tells, in the protocol's order of functions.
struct DragOfferEvents
{
    static DragOffers &of(void *data) { return *static_cast<DragOffers *>(data); }

    static void global(void *data, wl_registry *registry, uint32_t name, const char *interface,
                       uint32_t version)
    {
        DragOffers &self = of(data);
        if (self.m_manager || std::strcmp(interface, wl_data_device_manager_interface.name) != 0 ||
            version < kManagerVersion || !qtConnection()->seat())
            return;
        self.m_manager = static_cast<wl_data_device_manager *>(
            wl_registry_bind(registry, name, &wl_data_device_manager_interface, kManagerVersion));
        self.m_device = wl_data_device_manager_get_data_device(self.m_manager, qtConnection()->seat());
        wl_data_device_add_listener(self.m_device, &kDevice, data);
    }
    static void globalRemove(void *, wl_registry *, uint32_t) {}

    static void offerType(void *data, wl_data_offer *offer, const char *type)
    {
        DragOffers &self = of(data);
        if (offer == self.m_announced && std::strcmp(type, Pasteboard::kFileUrls) == 0)
            self.m_announcedFiles = true;
    }
    static void offerActions(void *, wl_data_offer *, uint32_t) {}
    static void offerAction(void *, wl_data_offer *, uint32_t) {}

    static void announce(void *data, wl_data_device *, wl_data_offer *offer)
    {
        DragOffers &self = of(data);
        destroy(std::exchange(self.m_announced, offer));
        self.m_announcedFiles = false;
        wl_data_offer_add_listener(offer, &kOffer, data);
    }
    static void enter(void *data, wl_data_device *, uint32_t, wl_surface *, wl_fixed_t, wl_fixed_t,
                      wl_data_offer *offer)
    {
        DragOffers &self = of(data);
        if (!offer || offer != self.m_announced)
            return;
        destroy(std::exchange(self.m_drag, std::exchange(self.m_announced, nullptr)));
        if (self.m_announcedFiles)
            self.m_handlers.entered();
    }
    static void leave(void *data, wl_data_device *)
    {
        DragOffers &self = of(data);
        destroy(std::exchange(self.m_drag, nullptr));
        self.m_handlers.left();
    }
    static void motion(void *, wl_data_device *, uint32_t, wl_fixed_t, wl_fixed_t) {}
    // The offer stays until the next one: the source would take its end for that of the drop.
    static void drop(void *data, wl_data_device *) { of(data).m_handlers.dropped(); }
    static void selection(void *data, wl_data_device *, wl_data_offer *offer)
    {
        DragOffers &self = of(data);
        if (offer && offer == self.m_announced)
            destroy(std::exchange(self.m_announced, nullptr));
    }

    static constexpr wl_registry_listener kRegistry{global, globalRemove};
    static constexpr wl_data_offer_listener kOffer{offerType, offerActions, offerAction};
    static constexpr wl_data_device_listener kDevice{announce, enter, leave, motion, drop, selection};
};

DragOffers::DragOffers(Handlers handlers)
    : m_handlers(std::move(handlers))
    , m_registry(wl_display_get_registry(qtConnection()->display()))
{
    wl_registry_add_listener(m_registry, &DragOfferEvents::kRegistry, this);
}

DragOffers::~DragOffers()
{
    destroy(m_announced);
    destroy(m_drag);
    if (m_device)
        wl_data_device_release(m_device);
    if (m_manager)
        wl_data_device_manager_destroy(m_manager);
    wl_registry_destroy(m_registry);
}

int DragOffers::readFiles() const
{
    std::array<int, 2> ends{-1, -1};
    if (!m_drag || ::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    // The source gets a writing end like any other.
    ::fcntl(ends[1], F_SETFL, 0);
    wl_data_offer_receive(m_drag, Pasteboard::kFileUrls, ends[1]);
    wl_display_flush(qtConnection()->display());
    ::close(ends[1]);
    return ends[0];
}

} // namespace Kestrune
