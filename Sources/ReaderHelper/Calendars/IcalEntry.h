#pragma once

#include "IcalZones.h"

#include <QList>
#include <QString>

namespace Kestrune {

/// How long something takes: so many days on the calendar and then so many seconds.
struct IcalSpan
{
    qint64 days = 0;
    qint64 seconds = 0;

    /// The end (UTC) of what begins then; never before that.
    QDateTime endOf(const IcalMoment &start) const;
};

/// One event or task as its calendar has it.
struct IcalEntry
{
    QString uid;
    QString title;
    IcalMoment start; ///< Of a task: maybe none.
    IcalSpan span;
    IcalMoment due;          ///< Of a task: maybe none.
    IcalMoment instance;     ///< Which occurrence of the series this one replaces, if it does.
    QByteArray instanceText; ///< The same as the calendar writes it.
    bool cancelled = false;
    bool done = false;
    QList<QByteArray> rules; ///< When it repeats.
    QList<IcalMoment> added;
    QList<IcalMoment> excluded;

    bool repeats() const { return !rules.isEmpty() || !added.isEmpty(); }
};

/// What one calendar file has.
struct IcalContents
{
    QList<IcalEntry> events;
    QList<IcalEntry> tasks;
};

} // namespace Kestrune
