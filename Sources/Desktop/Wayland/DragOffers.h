#pragma once

#include <QtGlobal>

#include <functional>
#include <memory>

struct wl_data_device;
struct wl_data_device_manager;
struct wl_data_offer;
struct wl_registry;
struct wl_surface;

namespace Kestrune {

/// The drags over this program's windows, as a data device of its own on Qt's connection is told of them.
/// Accepting and finishing a drag is left to Qt's. Main thread only.
class DragOffers
{
public:
    struct Handlers
    {
        std::function<void()> entered; ///< With an offer of files; called before Qt tells the window.
        std::function<void()> left;
        std::function<void()> dropped;
    };

    /// Qt runs on Wayland.
    explicit DragOffers(Handlers handlers);
    ~DragOffers();
    Q_DISABLE_COPY_MOVE(DragOffers)

    /// Asks the source of the drag that has entered for its list of files. The descriptor to read it from,
    /// which does not block and is the caller's; -1 when there can be none.
    int readFiles() const;

private:
    friend struct DragOfferEvents;

    Handlers m_handlers;
    wl_registry *m_registry = nullptr;
    wl_data_device_manager *m_manager = nullptr;
    wl_data_device *m_device = nullptr;
    wl_data_offer *m_announced = nullptr; ///< Its kind is not known yet.
    bool m_announcedFiles = false;
    wl_data_offer *m_drag = nullptr; ///< Of the drag that is over a window, or was dropped there last.
};

} // namespace Kestrune
