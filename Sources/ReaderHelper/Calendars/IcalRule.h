#pragma once

#include "IcalEntry.h"

#include <QSet>

#include <chrono>
#include <functional>
#include <optional>

struct icalrecurrencetype;

namespace Kestrune {

/// Rules that took long to work out: they are not tried again. Those of one source; one thread.
using IcalSuspects = QSet<QByteArray>;

/// What the rules of one calendar may cost together: times that are computed, and time of the thread's
/// processor, not of the clock, which says little on a busy machine. One thread.
class IcalBudget
{
public:
    /// `suspects` must outlive it.
    explicit IcalBudget(IcalSuspects &suspects);

    /// Takes the cost of one more time; false once too little is left.
    bool spend();

    /// Carries out `work`, and suspects `rule` where that takes too long; false if it was suspected before.
    bool tryOut(const QByteArray &rule, const std::function<bool()> &work);

private:
    static std::chrono::nanoseconds used();

    IcalSuspects &m_suspects;
    int m_times = 0;
    std::chrono::nanoseconds m_end;
};

/// A rule by which something repeats, from its first time on.
class IcalRule
{
public:
    /// `rule` as calendars write it; one that makes no sense has no times.
    IcalRule(const QByteArray &rule, const IcalMoment &start)
        : m_rule(rule)
        , m_start(start)
    {}

    /// Calls `visit` with its times in their order until that returns false; times before `earliest` may be
    /// left out. Whether all others were visited: not with a rule that cannot be followed or is suspected,
    /// nor at the end of the budget or after some ten thousand.
    bool visit(const QDateTime &earliest, IcalBudget &budget,
               const std::function<bool(const IcalMoment &)> &visit) const;

private:
    bool follow(const QDateTime &earliest, IcalBudget &budget,
                const std::function<bool(const IcalMoment &)> &visit) const;
    /// The first of its times that is of interest, where all before can be counted without the library;
    /// nothing once the rule is over.
    std::optional<QDateTime> begin(icalrecurrencetype &rule, const QDateTime &skipTo) const;

    QByteArray m_rule;
    IcalMoment m_start;
};

} // namespace Kestrune
