#pragma once

#include "NotchKit/Platform/Utc.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>

#include <functional>
#include <memory>

namespace Kestrune {

/// What the clocks show somewhere.
class IcalZone
{
public:
    virtual ~IcalZone() = default;

    /// The instant (UTC) at which the clocks there show that time; one that they skip is taken an hour later.
    virtual QDateTime instant(const QDate &date, const QTime &time) const = 0;

    /// What the clocks there show at that instant: date and time, in UTC's disguise.
    virtual QDateTime wall(const QDateTime &instant) const = 0;
};

using IcalZonePtr = std::shared_ptr<const IcalZone>;

/// A time as a calendar has it.
struct IcalMoment
{
    QDate date;
    QTime time; ///< Invalid for a whole day.
    IcalZonePtr zone;

    bool isValid() const { return date.isValid(); }
    bool isDay() const { return !time.isValid(); }
    QDateTime instant() const { return zone->instant(date, isDay() ? QTime(0, 0) : time); }
    /// Date and time in UTC's disguise, to count with.
    QDateTime wall() const { return {date, isDay() ? QTime(0, 0) : time, kUtc}; }
};

/// Finds time zones by the names that calendars give them. One thread only.
class IcalZones
{
public:
    /// The definition of a zone that a calendar names: a VTIMEZONE component as text, or nothing.
    using Definition = std::function<QByteArray(const QByteArray &name)>;

    static IcalZonePtr utc();
    static IcalZonePtr local(); ///< The user's, and that of times without a zone.

    /// Says which is the user's, by its name in the system's list.
    static void setLocal(const QByteArray &name);
    /// Reads the system's zones, as long as files can be opened.
    static void prepare();

    /// The zone `name`: the system's, or the one that `definition` has, or the user's where neither knows it.
    IcalZonePtr find(const QByteArray &name, const Definition &definition);

private:
    QHash<QByteArray, IcalZonePtr> m_named;   ///< Those of the system; null for unknown names.
    QHash<QByteArray, IcalZonePtr> m_defined; ///< By their definition.
};

} // namespace Kestrune
