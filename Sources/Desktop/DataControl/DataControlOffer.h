#pragma once

#include "Desktop/Compositor/Descriptor.h"

#include <QByteArray>
#include <QList>

struct ext_data_control_offer_v1;

namespace Kestrune {

/// What a program has copied: the forms in which it gives it.
class DataControlOffer
{
public:
    explicit DataControlOffer(ext_data_control_offer_v1 *offer);
    ~DataControlOffer();
    Q_DISABLE_COPY_MOVE(DataControlOffer)

    ext_data_control_offer_v1 *get() const { return m_offer; }

    /// Empty where the names are longer than `limit` bytes in all, or than any program needs.
    QList<QByteArray> types(qsizetype limit) const;
    bool has(const QByteArray &type) const { return m_types.contains(type); }

    /// Asks for the content in that form. What is given comes out of the descriptor, which does not block;
    /// -1 when there can be none.
    Descriptor receive(const QByteArray &type) const;

private:
    static void offered(void *self, ext_data_control_offer_v1 *, const char *type);

    ext_data_control_offer_v1 *m_offer;
    QList<QByteArray> m_types;
    qsizetype m_size = 0; ///< Of all names, kept or not.
};

} // namespace Kestrune
