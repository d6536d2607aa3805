#pragma once

#include "Desktop/Mime/PasteboardTypes.h"
#include "PipeWriters.h"

struct ext_data_control_source_v1;

namespace Kestrune {

/// A copy of this program's, given to whoever asks until another takes its place.
class DataControlSource
{
public:
    /// Offers the content in these forms. What readers ask for goes to `writers`.
    DataControlSource(ext_data_control_source_v1 *source, const QList<PasteboardTypes::Form> &forms,
                      PipeWriters &writers);
    ~DataControlSource();
    Q_DISABLE_COPY_MOVE(DataControlSource)

    ext_data_control_source_v1 *get() const { return m_source; }

    /// Nobody asks for it any more.
    bool isCancelled() const { return m_cancelled; }

private:
    static void send(void *self, ext_data_control_source_v1 *, const char *type, int descriptor);
    static void cancelled(void *self, ext_data_control_source_v1 *);

    ext_data_control_source_v1 *m_source;
    QList<PasteboardTypes::Form> m_forms;
    PipeWriters &m_writers;
    bool m_cancelled = false;
};

} // namespace Kestrune
