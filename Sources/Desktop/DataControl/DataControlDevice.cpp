#include "DataControlDevice.h"

#include "data-control-protocol.h"

#include <algorithm>

namespace Kestrune {

DataControlDevice::DataControlDevice(ext_data_control_device_v1 *device, std::function<void()> changed)
    : m_device(device)
    , m_changed(std::move(changed))
{
    static constexpr ext_data_control_device_v1_listener listener{
        &DataControlDevice::announced, &DataControlDevice::copied, &DataControlDevice::finished,
        &DataControlDevice::selected};
    ext_data_control_device_v1_add_listener(m_device, &listener, this);
}

DataControlDevice::~DataControlDevice() { ext_data_control_device_v1_destroy(m_device); }

void DataControlDevice::put(ext_data_control_source_v1 *source)
{
    ext_data_control_device_v1_set_selection(m_device, source);
}

void DataControlDevice::announced(void *self, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer)
{
    static_cast<DataControlDevice *>(self)->m_announced.push_back(std::make_unique<DataControlOffer>(offer));
}

void DataControlDevice::copied(void *self, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer)
{
    auto &device = *static_cast<DataControlDevice *>(self);
    device.m_content = device.take(offer);
    device.m_changed();
}

void DataControlDevice::selected(void *self, ext_data_control_device_v1 *, ext_data_control_offer_v1 *offer)
{
    static_cast<DataControlDevice *>(self)->take(offer); // Not looked at.
}

void DataControlDevice::finished(void *self, ext_data_control_device_v1 *)
{
    static_cast<DataControlDevice *>(self)->m_finished = true;
}

DataControlDevice::Offer DataControlDevice::take(const ext_data_control_offer_v1 *offer)
{
    const auto found = std::ranges::find(m_announced, offer, &DataControlOffer::get);
    if (found == m_announced.end())
        return nullptr;
    Offer taken = std::move(*found);
    m_announced.clear(); // An older one was for nothing.
    return taken;
}

} // namespace Kestrune
