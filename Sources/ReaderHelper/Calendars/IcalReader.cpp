#include "IcalReader.h"

#include <libical/ical.h>

#include <memory>

namespace Kestrune {

namespace {

struct Freed
{
    void operator()(icalcomponent *component) const { icalcomponent_free(component); }
    void operator()(char *text) const { icalmemory_free_buffer(text); }
};
using Component = std::unique_ptr<icalcomponent, Freed>;
using Text = std::unique_ptr<char, Freed>;

/// Reads the properties of one component.
class EntryReader
{
public:
    EntryReader(icalcomponent *component, IcalZones &zones, const IcalZones::Definition &definition)
        : m_component(component)
        , m_zones(zones)
        , m_definition(definition)
    {}

    IcalEntry read()
    {
        IcalEntry entry;
        entry.uid = text(ICAL_UID_PROPERTY);
        entry.title = text(ICAL_SUMMARY_PROPERTY).simplified();
        entry.start = moment(first(ICAL_DTSTART_PROPERTY));
        entry.due = moment(first(ICAL_DUE_PROPERTY));
        entry.span = readSpan(entry.start);
        if (!entry.due.isValid() && entry.start.isValid() && first(ICAL_DURATION_PROPERTY))
            entry.due = dueAfter(entry);
        readInstance(entry);
        readRepetition(entry);
        const icalproperty_status status = icalcomponent_get_status(m_component);
        entry.cancelled = status == ICAL_STATUS_CANCELLED;
        icalproperty *percent = first(ICAL_PERCENTCOMPLETE_PROPERTY);
        entry.done = status == ICAL_STATUS_COMPLETED || first(ICAL_COMPLETED_PROPERTY) ||
                     (percent && icalproperty_get_percentcomplete(percent) >= 100);
        return entry;
    }

private:
    icalproperty *first(icalproperty_kind kind) const
    {
        return icalcomponent_get_first_property(m_component, kind);
    }

    template <typename Visit>
    void each(icalproperty_kind kind, const Visit &visit) const
    {
        for (icalproperty *property = first(kind); property;
             property = icalcomponent_get_next_property(m_component, kind))
            visit(property);
    }

    QString text(icalproperty_kind kind) const
    {
        icalproperty *property = first(kind);
        const icalvalue *value = property ? icalproperty_get_value(property) : nullptr;
        return value ? QString::fromUtf8(icalvalue_get_text(value)) : QString();
    }

    IcalMoment moment(icalproperty *property, const icaltimetype &time) const
    {
        const QDate date(time.year, time.month, time.day);
        if (icaltime_is_null_time(time) || !date.isValid())
            return {};
        if (time.is_date)
            return {date, {}, IcalZones::local()};
        // A leap second has no place of its own.
        const QTime clock(time.hour, time.minute, std::min(time.second, 59));
        if (!clock.isValid())
            return {};
        if (icaltime_is_utc(time))
            return {date, clock, IcalZones::utc()};
        icalparameter *parameter = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
        const QByteArray name = parameter ? icalparameter_get_tzid(parameter) : "";
        return {date, clock, m_zones.find(name, m_definition)};
    }

    IcalMoment moment(icalproperty *property) const
    {
        const icalvalue *value = property ? icalproperty_get_value(property) : nullptr;
        if (!value)
            return {};
        switch (icalvalue_isa(value)) {
        case ICAL_DATE_VALUE:
        case ICAL_DATETIME_VALUE:
        case ICAL_DATETIMEDATE_VALUE:
            return moment(property, icalvalue_get_datetime(value));
        case ICAL_DATETIMEPERIOD_VALUE:
        case ICAL_PERIOD_VALUE: {
            const icaldatetimeperiodtype either = icalvalue_get_datetimeperiod(value);
            return moment(property, icaltime_is_null_time(either.time) ? either.period.start : either.time);
        }
        default:
            return {};
        }
    }

    IcalSpan readSpan(const IcalMoment &start) const
    {
        if (!start.isValid())
            return {};
        const IcalMoment end = moment(first(ICAL_DTEND_PROPERTY));
        if (end.isValid()) {
            return start.isDay() ? IcalSpan{std::max<qint64>(start.date.daysTo(end.date), 1), 0}
                                 : IcalSpan{0, std::max<qint64>(start.instant().secsTo(end.instant()), 0)};
        }
        icalproperty *property = first(ICAL_DURATION_PROPERTY);
        if (!property)
            return {start.isDay() ? 1 : 0, 0};
        const icaldurationtype length = icalproperty_get_duration(property);
        if (length.is_neg)
            return {start.isDay() ? 1 : 0, 0};
        const qint64 days = qint64(length.weeks) * 7 + length.days;
        if (start.isDay())
            return {std::max<qint64>(days, 1), 0};
        return {days, (qint64(length.hours) * 60 + length.minutes) * 60 + length.seconds};
    }

    static IcalMoment dueAfter(const IcalEntry &entry)
    {
        const QDateTime end = entry.start.wall().addDays(entry.span.days).addSecs(entry.span.seconds);
        return {end.date(), entry.start.isDay() ? QTime() : end.time(), entry.start.zone};
    }

    void readInstance(IcalEntry &entry) const
    {
        icalproperty *property = first(ICAL_RECURRENCEID_PROPERTY);
        entry.instance = moment(property);
        if (entry.instance.isValid())
            entry.instanceText = Text(icalproperty_get_value_as_string_r(property)).get();
    }

    void readRepetition(IcalEntry &entry) const
    {
        each(ICAL_RRULE_PROPERTY, [&](icalproperty *property) {
            if (const Text rule{icalproperty_get_value_as_string_r(property)})
                entry.rules.append(rule.get());
        });
        const auto append = [this](QList<IcalMoment> &list) {
            return [this, &list](icalproperty *property) {
                if (const IcalMoment found = moment(property); found.isValid())
                    list.append(found);
            };
        };
        each(ICAL_RDATE_PROPERTY, append(entry.added));
        each(ICAL_EXDATE_PROPERTY, append(entry.excluded));
    }

    icalcomponent *m_component;
    IcalZones &m_zones;
    const IcalZones::Definition &m_definition;
};

void read(icalcomponent *component, IcalZones &zones, const IcalZones::Definition &definition,
          IcalContents &contents)
{
    switch (icalcomponent_isa(component)) {
    case ICAL_VEVENT_COMPONENT:
        if (IcalEntry entry = EntryReader(component, zones, definition).read(); entry.start.isValid())
            contents.events.append(std::move(entry));
        break;
    case ICAL_VTODO_COMPONENT:
        contents.tasks.append(EntryReader(component, zones, definition).read());
        break;
    case ICAL_VCALENDAR_COMPONENT:
    case ICAL_XROOT_COMPONENT:
        for (icalcomponent *inner = icalcomponent_get_first_component(component, ICAL_ANY_COMPONENT); inner;
             inner = icalcomponent_get_next_component(component, ICAL_ANY_COMPONENT))
            read(inner, zones, definition, contents);
        break;
    default:
        break;
    }
}

/// The zones that a calendar defines. Gathered before anything else: a component can be gone through by one
/// reader at a time only.
class OwnZones
{
public:
    explicit OwnZones(icalcomponent *component) { gather(component); }

    QByteArray definition(const QByteArray &name)
    {
        icalcomponent *zone = m_zones.value(name);
        if (zone && !m_texts.contains(name))
            m_texts.insert(name, Text(icalcomponent_as_ical_string_r(zone)).get());
        return m_texts.value(name);
    }

private:
    void gather(icalcomponent *component)
    {
        for (icalcomponent *inner = icalcomponent_get_first_component(component, ICAL_ANY_COMPONENT); inner;
             inner = icalcomponent_get_next_component(component, ICAL_ANY_COMPONENT)) {
            if (icalcomponent_isa(inner) == ICAL_VCALENDAR_COMPONENT)
                gather(inner);
            icalproperty *property = icalcomponent_isa(inner) == ICAL_VTIMEZONE_COMPONENT
                                         ? icalcomponent_get_first_property(inner, ICAL_TZID_PROPERTY)
                                         : nullptr;
            if (const char *name = property ? icalproperty_get_tzid(property) : nullptr)
                m_zones.insert(name, inner);
        }
    }

    QHash<QByteArray, icalcomponent *> m_zones;
    QHash<QByteArray, QByteArray> m_texts;
};

/// Whether each component ends, inside the one around it, and nothing follows but components: what is still
/// being written does not. The library would take it, and complain on standard error.
bool isWhole(const QByteArray &data)
{
    constexpr qsizetype kDeepest = 8;
    QList<QByteArray> open;
    bool found = false;
    for (qsizetype at = 0; at < data.size();) {
        const qsizetype next = data.indexOf('\n', at) + 1;
        const qsizetype end = next > 0 ? next : data.size();
        const char first = data.at(at);
        if (first == 'B' || first == 'b' || first == 'E' || first == 'e') {
            const QByteArray line = data.mid(at, end - at).trimmed().toUpper();
            if (line.startsWith("BEGIN:"))
                open.append(line.mid(6));
            else if (line.startsWith("END:") && (open.isEmpty() || open.takeLast() != line.mid(4)))
                return false;
            if (open.size() > kDeepest || (!open.isEmpty() && open.first() != "VCALENDAR"))
                return false;
            found = found || !open.isEmpty();
        }
        at = end;
    }
    return found && open.isEmpty();
}

} // namespace

QDateTime IcalSpan::endOf(const IcalMoment &start) const
{
    const QDateTime wall = start.wall().addDays(days);
    return start.zone->instant(wall.date(), wall.time()).addSecs(seconds);
}

IcalReader::IcalReader() { icalerror_set_errors_are_fatal(0); }

std::optional<IcalContents> IcalReader::readCalendar(const QByteArray &data)
{
    const QByteArray text = data.startsWith("\xEF\xBB\xBF") ? data.mid(3) : data;
    if (text.size() > kMostBytes || !isWhole(text) || text.contains('\0'))
        return std::nullopt;
    const Component component(icalparser_parse_string(text.constData()));
    if (!component)
        return std::nullopt;
    IcalContents contents;
    OwnZones own(component.get());
    read(
        component.get(), m_zones, [&](const QByteArray &name) { return own.definition(name); }, contents);
    return contents;
}

void IcalReader::readComponents(const QByteArray &data, const IcalZones::Definition &definition,
                                IcalContents &contents)
{
    if (data.size() > kMostBytes)
        return;
    const Component component(icalparser_parse_string(data.constData()));
    if (!component)
        return;
    OwnZones own(component.get());
    const auto either = [&](const QByteArray &name) {
        const QByteArray found = own.definition(name);
        return found.isEmpty() && definition ? definition(name) : found;
    };
    read(component.get(), m_zones, either, contents);
}

} // namespace Kestrune
