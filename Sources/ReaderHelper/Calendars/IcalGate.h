#pragma once

struct icalrecurrencetype;
struct icalcomponent_impl;

namespace Kestrune {

/// What of the rules that strangers write is given to the library to compute. Numbers of weeks make it crash
/// for some years, and a rhythm finer than a day with a filter that never fits is searched for minutes.
struct IcalGate
{
    /// For the times of an event or a task.
    static bool passes(const icalrecurrencetype &rule);

    /// Whether some of the times that its rhythm has are left out.
    static bool isFiltered(const icalrecurrencetype &rule);

    /// Takes the rules out of a zone's definition that no clocks follow: those that do not name days of a
    /// year. The library computes them for all years to come.
    static void cleanZone(icalcomponent_impl *zone);
};

} // namespace Kestrune
