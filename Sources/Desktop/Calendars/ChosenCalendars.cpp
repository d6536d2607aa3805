#include "ChosenCalendars.h"

#include "EvolutionCalendars.h"
#include "FolderCalendars.h"
#include "JoinedCalendars.h"
#include "Log.h"

namespace Kestrune {

ChosenCalendars::ChosenCalendars(const QDBusConnection &bus, const QString &helper,
                                 std::chrono::milliseconds patience)
    : m_bus(bus)
    , m_helper(helper)
    , m_patience(patience)
{}

ChosenCalendars::~ChosenCalendars() = default;

CalendarSource &ChosenCalendars::source(const Choice &choice)
{
    const bool wantsBoth = choice.source == QLatin1String("both");
    if (choice.source != QLatin1String("folders")) {
        if (!m_evolution)
            m_evolution = std::make_unique<EvolutionCalendars>(m_bus, m_helper, m_patience);
        const bool isForced = choice.source == QLatin1String("evolution");
        if (isForced || (!wantsBoth && m_evolution->access() == CalendarAccess::full))
            return *m_evolution;
    }
    const QString root = FolderCalendars::rootFor(choice.folder);
    if (!m_folders || m_root != root) {
        m_both.reset();
        m_folders = std::make_unique<FolderCalendars>(root, m_helper);
        qCInfo(calendarLog, "the calendars of a folder are read");
    }
    m_root = root;
    if (wantsBoth && !m_both)
        m_both = std::make_unique<JoinedCalendars>(*m_evolution, *m_folders);
    return wantsBoth ? *m_both : *m_folders;
}

} // namespace Kestrune
