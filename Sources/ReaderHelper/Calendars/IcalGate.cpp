#include "IcalGate.h"

#include <QList>

#include <libical/ical.h>

namespace Kestrune {

namespace {

bool isGiven(const short *list) { return list[0] != ICAL_RECURRENCE_ARRAY_MAX; }

bool filtersDays(const icalrecurrencetype &rule)
{
    return isGiven(rule.by_month) || isGiven(rule.by_month_day) || isGiven(rule.by_year_day);
}

bool filtersTimes(const icalrecurrencetype &rule)
{
    return isGiven(rule.by_hour) || isGiven(rule.by_minute) || isGiven(rule.by_second);
}

} // namespace

bool IcalGate::isFiltered(const icalrecurrencetype &rule)
{
    return filtersDays(rule) || filtersTimes(rule) || isGiven(rule.by_day) || isGiven(rule.by_set_pos);
}

bool IcalGate::passes(const icalrecurrencetype &rule)
{
    if (isGiven(rule.by_week_no))
        return false;
    switch (rule.freq) {
    case ICAL_NO_RECURRENCE:
        return false;
    case ICAL_SECONDLY_RECURRENCE:
    case ICAL_MINUTELY_RECURRENCE:
        return !isFiltered(rule);
    case ICAL_HOURLY_RECURRENCE: // Each hour of certain days of the week comes within a week.
        return !isFiltered(rule) || (rule.interval == 1 && !filtersDays(rule) && !isGiven(rule.by_set_pos));
    default:
        return true;
    }
}

void IcalGate::cleanZone(icalcomponent_impl *zone)
{
    for (icalcomponent *part = icalcomponent_get_first_component(zone, ICAL_ANY_COMPONENT); part;
         part = icalcomponent_get_next_component(zone, ICAL_ANY_COMPONENT)) {
        QList<icalproperty *> refused;
        for (icalproperty *property = icalcomponent_get_first_property(part, ICAL_RRULE_PROPERTY); property;
             property = icalcomponent_get_next_property(part, ICAL_RRULE_PROPERTY)) {
            const icalrecurrencetype rule = icalproperty_get_rrule(property);
            if (rule.freq != ICAL_YEARLY_RECURRENCE || !passes(rule) || filtersTimes(rule))
                refused.append(property);
        }
        for (icalproperty *property : refused) {
            icalcomponent_remove_property(part, property);
            icalproperty_free(property);
        }
    }
}

} // namespace Kestrune
