#pragma once

#include "CalendarSource.h"

#include <QDBusConnection>

#include <memory>

namespace Kestrune {

/// Where the calendars are read from, as the user and the session have it. One thread only, which may wait.
class ChosenCalendars
{
public:
    /// What the user has set.
    struct Choice
    {
        QString source; ///< "evolution", "folders", or else whichever there is.
        QString folder; ///< Of the folders; empty for the usual one.
    };

    /// `helper` is the program that reads what calendars hold.
    ChosenCalendars(const QDBusConnection &bus, const QString &helper);
    ~ChosenCalendars();
    Q_DISABLE_COPY_MOVE(ChosenCalendars)

    /// The source to use now.
    CalendarSource &source(const Choice &choice);

private:
    QDBusConnection m_bus;
    QString m_helper;
    std::unique_ptr<CalendarSource> m_evolution;
    std::unique_ptr<CalendarSource> m_folders;
    QString m_root; ///< Of the folders.
};

} // namespace Kestrune
