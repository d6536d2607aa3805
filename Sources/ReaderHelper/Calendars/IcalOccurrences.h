#pragma once

#include "Desktop/Reader/CalendarWire.h"
#include "IcalEntry.h"
#include "IcalRule.h"

namespace Kestrune {

/// The occurrences in the range of what one calendar file or one series has: repeated, without those that
/// are excluded or cancelled, those that were moved where they are now. Ids begin with `origin`. Not of
/// `suspects`, to which those are added that take too long, and no more than a thousand of one series.
IcalFound icalOccurrences(const QList<IcalEntry> &entries, const IcalRange &range, const QString &origin,
                          IcalSuspects &suspects);

/// When a series that is at `current` comes next; an invalid moment when it is over. `instances` are those
/// that were moved out of it.
IcalMoment nextOccurrence(const IcalEntry &series, const IcalMoment &current,
                          const QList<IcalMoment> &instances);

/// Those that are not done, in no order. Ids are made by `icalTaskId` with `origin`.
CalendarStore::Tasks icalOpenTasks(const QList<IcalEntry> &entries, const QString &origin);

} // namespace Kestrune
