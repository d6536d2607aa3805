#pragma once

#include <QtGlobal>

#include <cstdint>
#include <vector>

struct ext_data_control_device_v1;
struct ext_data_control_manager_v1;
struct ext_data_control_source_v1;
struct wl_display;
struct wl_registry;

namespace Kestrune {

/// What a compositor has for programs that look after the clipboard: its data control, by the present name or
/// else by the former one, and its seats. Known once it has carried out all that was asked of it.
class DataControlGlobals
{
public:
    explicit DataControlGlobals(wl_display *display);
    ~DataControlGlobals();
    Q_DISABLE_COPY_MOVE(DataControlGlobals)

    bool hasManager() const { return m_present != 0 || m_former != 0; }

    bool hasSeat() const { return !m_seats.empty(); }

    /// The clipboard of the seat that came first; each seat once, null when there is none.
    ext_data_control_device_v1 *takeDevice();

    /// Something to put on a clipboard; only with a manager.
    ext_data_control_source_v1 *makeSource();

private:
    static void added(void *self, wl_registry *, uint32_t name, const char *interface, uint32_t version);
    static void removed(void *self, wl_registry *, uint32_t name);
    ext_data_control_manager_v1 *manager();

    wl_registry *m_registry;
    uint32_t m_present = 0; ///< The globals' names; 0 is none.
    uint32_t m_former = 0;
    std::vector<uint32_t> m_seats;
    ext_data_control_manager_v1 *m_manager = nullptr;
};

} // namespace Kestrune
