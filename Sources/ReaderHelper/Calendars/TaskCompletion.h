#pragma once

#include "Desktop/Reader/CalendarWire.h"
#include "IcalReader.h"

namespace Kestrune {

/// Finds the task in `text`, iCalendar data, and marks it done. One that repeats moves on to its next time
/// instead, as calendar programs do, until it has none left. Everything else stays as it was, byte for byte.
/// Nothing when the task is not there or is done already. `definition` finds zones that are only named.
std::optional<CompletedTask> completeTask(const QByteArray &text, const QString &uid, const QString &instance,
                                          const QDateTime &now, IcalReader &reader,
                                          const IcalZones::Definition &definition = {});

} // namespace Kestrune
