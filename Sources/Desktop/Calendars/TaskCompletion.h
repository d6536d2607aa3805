#pragma once

#include "IcalReader.h"

namespace Kestrune {

/// Calendar data in which a task is done.
struct CompletedTask
{
    QByteArray text; ///< All of it.
    QByteArray task; ///< The task's component alone.
};

/// Finds the task in `text`, iCalendar data, and marks it done. One that repeats moves on to its next time
/// instead, as calendar programs do, until it has none left. Everything else stays as it was, byte for byte.
/// Nothing when the task is not there or is done already. `definition` finds zones that are only named.
std::optional<CompletedTask> completeTask(const QByteArray &text, const QString &uid, const QString &instance,
                                          const QDateTime &now, IcalReader &reader,
                                          const IcalZones::Definition &definition = {});

} // namespace Kestrune
