#include "IcalZones.h"

#include "IcalGate.h"

#include <QTimeZone>

#include <libical/ical.h>

namespace Kestrune {

namespace {

constexpr int kMostDefined = 200; // Definitions kept; a calendar has a few.

QDateTime disguised(const QDateTime &there) { return {there.date(), there.time(), kUtc}; }

class SystemZone : public IcalZone
{
public:
    explicit SystemZone(const QTimeZone &zone)
        : m_zone(zone)
    {}
    QDateTime instant(const QDate &date, const QTime &time) const override
    {
        const QDateTime there(date, time, m_zone);
        return there.isValid() ? there.toUTC() : QDateTime(date, time.addSecs(3600), m_zone).toUTC();
    }
    QDateTime wall(const QDateTime &instant) const override { return disguised(instant.toTimeZone(m_zone)); }

private:
    QTimeZone m_zone;
};

/// All that the system knows, by their names: read once, when files can still be opened.
const QHash<QByteArray, QTimeZone> &systemZones()
{
    static const QHash<QByteArray, QTimeZone> zones = [] {
        QHash<QByteArray, QTimeZone> all;
        for (const QByteArray &name : QTimeZone::availableTimeZoneIds())
            all.insert(name, QTimeZone(name));
        return all;
    }();
    return zones;
}

struct LocalZone
{
    IcalZonePtr zone;
    QByteArray name;
};

LocalZone &localZone()
{
    static LocalZone local{std::make_shared<SystemZone>(QTimeZone::systemTimeZone()), {}};
    return local;
}

icaltimetype icalTime(const QDateTime &wall)
{
    icaltimetype time = icaltime_null_time();
    time.year = wall.date().year();
    time.month = wall.date().month();
    time.day = wall.date().day();
    time.hour = wall.time().hour();
    time.minute = wall.time().minute();
    time.second = wall.time().second();
    return time;
}

/// A zone that a calendar defines itself.
class DefinedZone : public IcalZone
{
public:
    explicit DefinedZone(icaltimezone *zone)
        : m_zone(zone)
    {}
    ~DefinedZone() override { icaltimezone_free(m_zone, 1); }
    Q_DISABLE_COPY_MOVE(DefinedZone)

    QDateTime instant(const QDate &date, const QTime &time) const override
    {
        const icaltimetype there = icalTime(QDateTime(date, time, kUtc));
        return QDateTime::fromSecsSinceEpoch(icaltime_as_timet_with_zone(there, m_zone), kUtc);
    }
    QDateTime wall(const QDateTime &instant) const override
    {
        icaltimetype utc = icalTime(instant);
        int daylight = 0;
        return instant.addSecs(icaltimezone_get_utc_offset_of_utc_time(m_zone, &utc, &daylight));
    }

private:
    icaltimezone *m_zone;
};

IcalZonePtr define(const QByteArray &definition)
{
    icalcomponent *component = icalparser_parse_string(definition.constData());
    icaltimezone *zone = icaltimezone_new();
    if (component)
        IcalGate::cleanZone(component);
    if (component && icalcomponent_isa(component) == ICAL_VTIMEZONE_COMPONENT &&
        icaltimezone_set_component(zone, component) != 0)
        return std::make_shared<DefinedZone>(zone);
    icaltimezone_free(zone, 1);
    if (component)
        icalcomponent_free(component);
    return nullptr;
}

/// The system's zone of that name. Some programs write a path of their own before it, others the name that
/// Windows has for it.
IcalZonePtr findNamed(const QByteArray &name)
{
    const QByteArray windows = QTimeZone::windowsIdToDefaultIanaId(name);
    if (const auto zone = systemZones().constFind(windows); zone != systemZones().cend())
        return std::make_shared<SystemZone>(*zone);
    const QList<QByteArray> parts = name.split('/');
    for (qsizetype from = 0; from < parts.size(); ++from) {
        const QByteArray tail = parts.mid(from).join('/');
        const bool place = from == 0 || parts.size() - from > 1 || tail == "UTC";
        const auto zone = systemZones().constFind(tail);
        if (place && zone != systemZones().cend())
            return std::make_shared<SystemZone>(*zone);
    }
    return nullptr;
}

} // namespace

IcalZonePtr IcalZones::utc()
{
    static const IcalZonePtr zone = std::make_shared<SystemZone>(QTimeZone::utc());
    return zone;
}

IcalZonePtr IcalZones::local() { return localZone().zone; }

void IcalZones::setLocal(const QByteArray &name)
{
    LocalZone &local = localZone();
    if (name == local.name)
        return;
    local = {std::make_shared<SystemZone>(systemZones().value(name, QTimeZone::utc())), name};
}

void IcalZones::prepare() { systemZones(); }

IcalZonePtr IcalZones::find(const QByteArray &name, const Definition &definition)
{
    if (name.isEmpty())
        return local();
    auto known = m_named.constFind(name);
    if (known == m_named.cend()) {
        if (m_named.size() > kMostDefined)
            m_named.clear();
        known = m_named.insert(name, findNamed(name));
    }
    if (*known)
        return *known;
    const QByteArray text = definition ? definition(name) : QByteArray();
    if (text.isEmpty())
        return local();
    if (m_defined.size() > kMostDefined)
        m_defined.clear();
    auto defined = m_defined.constFind(text);
    if (defined == m_defined.cend())
        defined = m_defined.insert(text, define(text));
    return *defined ? *defined : local();
}

} // namespace Kestrune
