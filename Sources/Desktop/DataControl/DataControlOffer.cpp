#include "DataControlOffer.h"

#include "data-control-protocol.h"

#include <array>

#include <fcntl.h>

namespace Kestrune {

namespace {

constexpr qsizetype kMostKept = qsizetype{64} * 1024; // Bytes of names.
constexpr qsizetype kPerName = 4;                     // So that even empty ones have an end.

} // namespace

DataControlOffer::DataControlOffer(ext_data_control_offer_v1 *offer)
    : m_offer(offer)
{
    static constexpr ext_data_control_offer_v1_listener listener{&DataControlOffer::offered};
    ext_data_control_offer_v1_add_listener(m_offer, &listener, this);
}

DataControlOffer::~DataControlOffer() { ext_data_control_offer_v1_destroy(m_offer); }

void DataControlOffer::offered(void *self, ext_data_control_offer_v1 *, const char *type)
{
    auto &offer = *static_cast<DataControlOffer *>(self);
    const QByteArray name(type);
    offer.m_size += name.size() + kPerName;
    if (offer.m_size <= kMostKept)
        offer.m_types.append(name);
}

QList<QByteArray> DataControlOffer::types(qsizetype limit) const
{
    return m_size <= std::min(limit, kMostKept) ? m_types : QList<QByteArray>();
}

Descriptor DataControlOffer::receive(const QByteArray &type) const
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return Descriptor();
    Descriptor ours(ends[0]);
    const Descriptor theirs(ends[1]); // A copy of it is sent.
    // The owner's end stays as programs expect it, one that makes them wait.
    ::fcntl(ours.get(), F_SETFL, O_NONBLOCK);
    ext_data_control_offer_v1_receive(m_offer, type.constData(), theirs.get());
    return ours;
}

} // namespace Kestrune
