#include "HelperCalendars.h"

#include "Desktop/Reader/MemoryFile.h"
#include "Desktop/Reader/ReaderWire.h"
#include "Log.h"
#include "NotchKit/Platform/Utc.h"

#include <QCryptographicHash>
#include <QTimeZone>

namespace Kestrune {

Q_LOGGING_CATEGORY(calendarLog, "kestrune.calendar", QtWarningMsg)

namespace {

constexpr qsizetype kMostTogether = qsizetype{512} * 1024; // Bytes of texts in one question.
constexpr qsizetype kMostAbandoned = 1000;

QByteArray digestOf(const IcalTexts &texts)
{
    CalendarQuestion question;
    question.calendars = {texts};
    return QCryptographicHash::hash(question.bytes(), QCryptographicHash::Sha256);
}

qsizetype sizeOf(const IcalTexts &texts)
{
    qsizetype size = 0;
    for (const QByteArray &text : texts.texts)
        size += text.size();
    return size;
}

} // namespace

HelperCalendars::HelperCalendars(const QString &helper)
    : m_readers(helper, ReaderWire::kCalendars)
{}

QByteArray HelperCalendars::userZone()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QByteArray name = QTimeZone::systemTimeZoneId();
    const QTimeZone zone(name);
    // Where the system's has no name, its distance from UTC is what is known of it.
    const int offset = now.offsetFromUtc();
    return zone.isValid() && zone.offsetFromUtc(now) == offset ? name : QTimeZone(offset).id();
}

std::variant<CalendarAnswer, ReaderFault> HelperCalendars::ask(const CalendarQuestion &question)
{
    const MemoryFile asked("question");
    const MemoryFile found("found");
    const QByteArray bytes = question.bytes();
    if (!asked.write(bytes) || !found.reserve(ReaderWire::kMostFound))
        return ReaderFault::missing;
    const auto outcome = m_readers.ask<ReaderWire::CalendarsAnswer>(
        ReaderWire::CalendarsQuestion{static_cast<std::uint32_t>(bytes.size())}, asked.descriptor(),
        found.descriptor());
    const auto *const answer = std::get_if<ReaderWire::CalendarsAnswer>(&outcome);
    if (!answer)
        return std::get<ReaderFault>(outcome);
    if (answer->size == 0 || answer->size > ReaderWire::kMostFound)
        return ReaderFault::ended;
    auto parsed = CalendarAnswer::parse(found.first(answer->size));
    if (!parsed || parsed->found.size() != question.calendars.size())
        return ReaderFault::ended;
    return *std::move(parsed);
}

QList<IcalFound> HelperCalendars::read(const QList<IcalTexts> &calendars, const IcalRange &range)
{
    QList<IcalFound> found;
    QList<IcalTexts> together;
    qsizetype size = 0;
    for (const IcalTexts &texts : calendars) {
        size += sizeOf(texts);
        together.append(texts);
        if (size < kMostTogether)
            continue;
        found += readTogether(together, range);
        together.clear();
        size = 0;
    }
    return found + readTogether(together, range);
}

QList<IcalFound> HelperCalendars::readTogether(const QList<IcalTexts> &calendars, const IcalRange &range)
{
    QList<IcalFound> found;
    if (calendars.size() > 1) {
        auto outcome = ask({userZone(), range, calendars, {}});
        if (auto *const answer = std::get_if<CalendarAnswer>(&outcome))
            return std::move(answer->found);
    }
    // One by one it is seen which of them it is.
    for (const IcalTexts &texts : calendars)
        found.append(readAlone(texts, range));
    return found;
}

IcalFound HelperCalendars::readAlone(const IcalTexts &texts, const IcalRange &range)
{
    const QByteArray digest = digestOf(texts);
    IcalFound found;
    found.state = IcalFound::State::abandoned;
    if (m_abandoned.contains(digest))
        return found;
    auto outcome = ask({userZone(), range, {texts}, {}});
    if (auto *const answer = std::get_if<CalendarAnswer>(&outcome))
        return std::move(answer->found.first());
    if (std::get<ReaderFault>(outcome) == ReaderFault::missing)
        return {};
    if (m_abandoned.size() >= kMostAbandoned)
        m_abandoned.clear();
    m_abandoned.insert(digest);
    return found;
}

std::optional<CompletedTask> HelperCalendars::complete(const IcalTexts &texts, const IcalTaskId &task,
                                                       QList<QByteArray> &zones)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    auto outcome = ask({userZone(), {now, now}, {texts}, IcalChange{task, now}});
    auto *const answer = std::get_if<CalendarAnswer>(&outcome);
    zones = answer ? answer->found.first().zones : QList<QByteArray>();
    return answer ? std::move(answer->completed) : std::nullopt;
}

} // namespace Kestrune
