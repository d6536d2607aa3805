#include "CalendarAnswers.h"

#include "IcalOccurrences.h"
#include "IcalReader.h"
#include "TaskCompletion.h"

#include <QSet>

#include <algorithm>

namespace Kestrune {

struct CalendarAnswers::State
{
    IcalReader reader;
    IcalSuspects suspects;
};

namespace {

/// The zones that a calendar's texts only name.
class GivenZones
{
public:
    explicit GivenZones(const QMap<QByteArray, QByteArray> &zones)
        : m_zones(zones)
    {}

    IcalZones::Definition definition()
    {
        return [this](const QByteArray &name) {
            const QByteArray found = m_zones.value(name);
            if (found.isEmpty())
                m_missing.insert(name);
            return found;
        };
    }
    QList<QByteArray> missing() const { return m_missing.values(); }

private:
    const QMap<QByteArray, QByteArray> &m_zones;
    QSet<QByteArray> m_missing;
};

std::optional<IcalContents> contentsOf(const IcalTexts &texts, const IcalZones::Definition &definition,
                                       IcalReader &reader)
{
    if (texts.isWhole)
        return reader.readCalendar(texts.texts.value(0));
    IcalContents contents;
    for (const QByteArray &text : texts.texts)
        reader.readComponents(text, definition, contents);
    for (auto series = texts.series.cbegin(); series != texts.series.cend(); ++series) {
        contents.events.removeIf([&](const IcalEntry &event) { return event.uid == series.key(); });
        for (const QByteArray &text : series.value())
            reader.readComponents(text, definition, contents);
    }
    return contents;
}

QStringList seriesOf(const QList<IcalEntry> &events)
{
    QSet<QString> series;
    for (const IcalEntry &event : events) {
        if (event.repeats())
            series.insert(event.uid);
    }
    return series.values();
}

constexpr qsizetype kMostKept = 2000; // Of one calendar; a view shows some ten.

void keepFirst(IcalFound &found)
{
    if (found.events.size() <= kMostKept)
        return;
    std::ranges::stable_sort(found.events, {}, &CalendarEvent::start);
    found.until = std::min(found.until, found.events.at(kMostKept).start);
    found.events.resize(kMostKept);
}

/// Those without a time are due last.
void keepFirst(CalendarStore::Tasks &tasks)
{
    if (tasks.size() <= kMostKept)
        return;
    std::ranges::stable_sort(
        tasks, {}, [](const CalendarTask &task) { return std::pair(!task.due.isValid(), task.due); });
    tasks.resize(kMostKept);
}

IcalFound find(const IcalTexts &texts, const IcalRange &range, IcalReader &reader, IcalSuspects &suspects)
{
    GivenZones zones(texts.zones);
    const auto contents = contentsOf(texts, zones.definition(), reader);
    IcalFound found;
    found.state = IcalFound::State::damaged;
    if (!contents)
        return found;
    found = icalOccurrences(contents->events, range, texts.origin, suspects);
    found.state = IcalFound::State::read;
    keepFirst(found);
    found.tasks = icalOpenTasks(contents->tasks, texts.origin);
    keepFirst(found.tasks);
    if (!texts.isWhole)
        found.series = seriesOf(contents->events);
    found.zones = zones.missing();
    return found;
}

} // namespace

CalendarAnswers::CalendarAnswers()
    : m_state(std::make_unique<State>())
{}

CalendarAnswers::~CalendarAnswers() = default;

CalendarAnswer CalendarAnswers::answer(const CalendarQuestion &question, const std::function<void()> &begins)
{
    IcalZones::setLocal(question.zone);
    CalendarAnswer answer;
    for (const IcalTexts &texts : question.calendars) {
        if (begins)
            begins();
        if (!question.change) {
            answer.found.append(find(texts, question.range, m_state->reader, m_state->suspects));
            continue;
        }
        GivenZones zones(texts.zones);
        answer.completed =
            completeTask(texts.texts.value(0), question.change->task.uid, question.change->task.instance,
                         question.change->now, m_state->reader, zones.definition());
        IcalFound &found = answer.found.emplaceBack();
        found.state = IcalFound::State::read;
        found.zones = zones.missing();
    }
    return answer;
}

} // namespace Kestrune
