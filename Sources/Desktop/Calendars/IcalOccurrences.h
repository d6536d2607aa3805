#pragma once

#include "IcalEntry.h"
#include "IcalRule.h"
#include "NotchKit/Platform/CalendarStore.h"

#include <functional>
#include <optional>

namespace Kestrune {

/// A piece of time, UTC.
struct IcalRange
{
    QDateTime from;
    QDateTime to; ///< Exclusive.
};

/// The occurrences in the range of what one calendar file or one series has: repeated, without those that
/// are excluded or cancelled, those that were moved where they are now. Ids begin with `origin`. Not of
/// `suspects`, to which those are added that take too long, and no more than a thousand of one series.
CalendarStore::Events icalOccurrences(const QList<IcalEntry> &entries, const IcalRange &range,
                                      const QString &origin, const QColor &color, IcalSuspects &suspects);

/// When a series that is at `current` comes next; an invalid moment when it is over. `instances` are those
/// that were moved out of it.
IcalMoment nextOccurrence(const IcalEntry &series, const IcalMoment &current,
                          const QList<IcalMoment> &instances);

/// Those that are not done, in no order. Ids are made by `icalTaskId` with `origin`.
CalendarStore::Tasks icalOpenTasks(const QList<IcalEntry> &entries, const QString &origin,
                                   const QColor &color);

/// What a task is found again by.
struct IcalTaskId
{
    QString origin;
    QString uid;
    QString instance; ///< As its calendar writes it; empty for the task itself.

    QString text() const;
    static std::optional<IcalTaskId> parse(const QString &text);
};

} // namespace Kestrune
