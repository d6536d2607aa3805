#pragma once

#include "Program.h"
#include "Scenario.h"

namespace Faults {

/// What a process holds between an early and a late moment of a long run.
class Growth
{
public:
    void begin(const Holdings &holdings) { m_before = holdings; }
    bool hasBegun() const { return m_before.memory > 0; }

    /// Adds the figures; faults are descriptors and threads above a few, and memory above `mostMemory`
    /// kilobytes.
    void end(const Holdings &after, qint64 mostMemory, Outcome &outcome) const
    {
        const auto fromTo = [](qint64 from, qint64 to) {
            return QStringLiteral("%1 → %2").arg(from).arg(to);
        };
        outcome.figure(QStringLiteral("PSS kB"), fromTo(m_before.memory, after.memory));
        outcome.figure(QStringLiteral("descriptors"), fromTo(m_before.descriptors, after.descriptors));
        outcome.figure(QStringLiteral("threads"), fromTo(m_before.threads, after.threads));
        outcome.limit("own memory grew by", after.ownMemory - m_before.ownMemory, mostMemory, "kB");
        if (after.descriptors > m_before.descriptors + kNoise || after.threads > m_before.threads + kNoise)
            outcome.fault(QStringLiteral("descriptors or threads are left behind: ") + more(after));
    }

private:
    /// Of which kinds of descriptors there are more.
    QString more(const Holdings &after) const
    {
        QStringList kinds;
        for (auto kind = after.kinds.begin(); kind != after.kinds.end(); ++kind) {
            if (*kind > m_before.kinds.value(kind.key()))
                kinds.append(QStringLiteral("%1 of %2").arg(*kind).arg(kind.key()));
        }
        return kinds.join(QStringLiteral(", "));
    }

    static constexpr qint64 kNoise = 5; ///< Threads that end a moment later, and theirs.

    Holdings m_before;
};

} // namespace Faults
