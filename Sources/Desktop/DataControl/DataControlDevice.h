#pragma once

#include "DataControlOffer.h"

#include <functional>
#include <memory>
#include <vector>

struct ext_data_control_device_v1;
struct ext_data_control_source_v1;

namespace Kestrune {

/// The clipboard of a seat.
class DataControlDevice
{
public:
    /// Calls `changed` whenever something else is on it, or nothing.
    DataControlDevice(ext_data_control_device_v1 *device, std::function<void()> changed);
    ~DataControlDevice();
    Q_DISABLE_COPY_MOVE(DataControlDevice)

    /// What is on it; null when there is nothing.
    const DataControlOffer *content() const { return m_content.get(); }

    void put(ext_data_control_source_v1 *source);

    /// The seat is gone.
    bool isFinished() const { return m_finished; }

private:
    using Offer = std::unique_ptr<DataControlOffer>;

    static void announced(void *self, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer);
    static void copied(void *self, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer);
    static void selected(void *self, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer);
    static void finished(void *self, ext_data_control_device_v1 *);
    Offer take(const ext_data_control_offer_v1 *offer);

    ext_data_control_device_v1 *m_device;
    std::function<void()> m_changed;
    std::vector<Offer> m_announced; ///< Not yet said for what.
    Offer m_content;
    bool m_finished = false;
};

} // namespace Kestrune
