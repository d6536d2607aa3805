#include "DataControlSource.h"

#include "data-control-protocol.h"

#include <algorithm>

namespace Kestrune {

DataControlSource::DataControlSource(ext_data_control_source_v1 *source,
                                     const QList<PasteboardTypes::Form> &forms, PipeWriters &writers)
    : m_source(source)
    , m_forms(forms)
    , m_writers(writers)
{
    static constexpr ext_data_control_source_v1_listener listener{&DataControlSource::send,
                                                                  &DataControlSource::cancelled};
    ext_data_control_source_v1_add_listener(m_source, &listener, this);
    for (const auto &form : m_forms)
        ext_data_control_source_v1_offer(m_source, form.target.constData());
}

DataControlSource::~DataControlSource() { ext_data_control_source_v1_destroy(m_source); }

void DataControlSource::send(void *self, ext_data_control_source_v1 *, const char *type, int descriptor)
{
    Descriptor reader(descriptor);
    auto &source = *static_cast<DataControlSource *>(self);
    const auto form = std::ranges::find(source.m_forms, QByteArrayView(type), &PasteboardTypes::Form::target);
    if (form != source.m_forms.end() && form->prepare())
        source.m_writers.add(std::move(reader), form->data);
}

void DataControlSource::cancelled(void *self, ext_data_control_source_v1 *)
{
    static_cast<DataControlSource *>(self)->m_cancelled = true;
}

} // namespace Kestrune
