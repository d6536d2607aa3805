#pragma once

#include <QElapsedTimer>
#include <QTest>

/// Milliseconds until `condition` holds, or -1 when it does not within `limit` milliseconds: as long as the
/// slowest machine may need, since a test that passes waits no longer than it must.
template <typename Condition>
qint64 timeUntil(const Condition &condition, qint64 limit = 60'000)
{
    QElapsedTimer timer;
    timer.start();
    do {
        if (condition())
            return timer.elapsed();
        QTest::qWait(5);
    } while (timer.elapsed() < limit);
    return condition() ? timer.elapsed() : -1;
}

template <typename Condition>
bool waitUntil(const Condition &condition, qint64 limit = 60'000)
{
    return timeUntil(condition, limit) >= 0;
}

/// Whether `condition` holds now and at every look during `milliseconds`.
template <typename Condition>
bool holdsFor(const Condition &condition, qint64 milliseconds)
{
    return !waitUntil([&] { return !condition(); }, milliseconds);
}
