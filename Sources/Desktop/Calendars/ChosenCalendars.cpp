#include "ChosenCalendars.h"

#include "EvolutionCalendars.h"
#include "FolderCalendars.h"
#include "Log.h"

namespace Kestrune {

ChosenCalendars::ChosenCalendars(const QDBusConnection &bus, const QString &helper)
    : m_bus(bus)
    , m_helper(helper)
{}

ChosenCalendars::~ChosenCalendars() = default;

CalendarSource &ChosenCalendars::source(const Choice &choice)
{
    if (choice.source != QLatin1String("folders")) {
        if (!m_evolution)
            m_evolution = std::make_unique<EvolutionCalendars>(m_bus, m_helper);
        if (choice.source == QLatin1String("evolution") || m_evolution->access() == CalendarAccess::full)
            return *m_evolution;
    }
    const QString root = FolderCalendars::rootFor(choice.folder);
    if (!m_folders || m_root != root) {
        m_folders = std::make_unique<FolderCalendars>(root, m_helper);
        qCInfo(calendarLog, "the calendars of a folder are read");
    }
    m_root = root;
    return *m_folders;
}

} // namespace Kestrune
