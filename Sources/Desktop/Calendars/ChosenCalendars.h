#pragma once

#include "CalendarSource.h"

#include <QDBusConnection>

#include <chrono>
#include <memory>

namespace Kestrune {

/// Where the calendars are read from, as the user and the session have it. One thread only, which may wait.
class ChosenCalendars
{
public:
    /// What the user has set.
    struct Choice
    {
        QString source; ///< "evolution", "folders", "both", or else whichever there is.
        QString folder; ///< Of the folders; empty for the usual one.
    };

    /// `helper` is the program that reads what calendars hold; `patience` is that of EvolutionBus.
    ChosenCalendars(const QDBusConnection &bus, const QString &helper, std::chrono::milliseconds patience);
    ~ChosenCalendars();
    Q_DISABLE_COPY_MOVE(ChosenCalendars)

    /// The source to use now.
    CalendarSource &source(const Choice &choice);

private:
    QDBusConnection m_bus;
    QString m_helper;
    std::chrono::milliseconds m_patience;
    std::unique_ptr<CalendarSource> m_evolution;
    std::unique_ptr<CalendarSource> m_folders;
    std::unique_ptr<CalendarSource> m_both;
    QString m_root; ///< Of the folders.
};

} // namespace Kestrune
