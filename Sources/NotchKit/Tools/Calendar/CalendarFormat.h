#pragma once

#include <QColor>
#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace Kestrune {

/// Days, times and colours of the calendar as the views show them, in the user's locale.
class CalendarFormat : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// When an event begins: "All day", or the day and the time, "Today 15:00"; or that it began before
    /// today: "All day, since Fri", "Since Fri 22:00".
    Q_INVOKABLE static QString when(const QDateTime &start, bool allDay, const QDateTime &now);

    /// When a reminder is due: the time today, a day's name around it, else the date. Midnight stands for
    /// the whole day. Empty without a time.
    Q_INVOKABLE static QString due(const QDateTime &due, const QDateTime &now);
    Q_INVOKABLE static bool isOverdue(const QDateTime &due, const QDateTime &now);

    /// That something of the calendars of these names could not be read; empty without names.
    Q_INVOKABLE static QString unread(const QStringList &names);

    /// A calendar's colour so light that it can be seen on the notch; grey without one.
    Q_INVOKABLE static QColor visible(const QColor &color);
};

} // namespace Kestrune
