#pragma once

#include "IcalEntry.h"

namespace Kestrune {

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
    /// left out. Ends by itself after some ten thousand.
    void visit(const QDateTime &earliest, const std::function<bool(const IcalMoment &)> &visit) const;

private:
    QByteArray m_rule;
    IcalMoment m_start;
};

} // namespace Kestrune
