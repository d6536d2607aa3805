#pragma once

#include "Desktop/Reader/CalendarWire.h"
#include "Desktop/Reader/ReaderPool.h"

#include <QSet>

namespace Kestrune {

/// Calendars read by a process of ours that can do nothing else. What ends it, or takes it too long, is
/// abandoned, and the same text is not tried again. One thread; blocks.
class HelperCalendars
{
public:
    explicit HelperCalendars(const QString &helper = ReaderPool::installed());

    /// What each of `calendars` has in the range, in their order.
    QList<IcalFound> read(const QList<IcalTexts> &calendars, const IcalRange &range);

    /// Marks a task done; `zones` is set to the names of those of which nothing is known. Nothing when the
    /// task is not there or is done already.
    std::optional<CompletedTask> complete(const IcalTexts &texts, const IcalTaskId &task,
                                          QList<QByteArray> &zones);

    /// The user's time zone, by its name in the system's list.
    static QByteArray userZone();

private:
    std::variant<CalendarAnswer, ReaderFault> ask(const CalendarQuestion &question);
    QList<IcalFound> readTogether(const QList<IcalTexts> &calendars, const IcalRange &range);
    IcalFound readAlone(const IcalTexts &texts, const IcalRange &range);

    ReaderPool m_readers;
    QSet<QByteArray> m_abandoned; ///< Digests of texts.
};

} // namespace Kestrune
