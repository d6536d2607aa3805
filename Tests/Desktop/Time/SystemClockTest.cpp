#include "Desktop/Time/SystemClock.h"
#include "Support/TestRegistry.h"

class SystemClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void repetitionsAreNeverEarlyAndDoNotDrift()
    {
        SystemClock clock;
        const auto start = clock.uptime();
        int rings = 0;
        int polls = 0;
        bool early = false;
        const auto poll = clock.every(33ms, [&] { early |= clock.uptime() < start + ++polls * 33ms; });
        const auto slow = clock.every(200ms, [&] { early |= clock.uptime() < start + ++rings * 200ms; });
        QTRY_COMPARE(rings, 4);
        QVERIFY(!early);
    }

    void sleepCounts()
    {
        struct Sleeper : SystemClock
        {
            std::chrono::nanoseconds uptimeWithSleep() const override
            {
                return SystemClock::uptimeWithSleep() + slept;
            }
            std::chrono::nanoseconds slept{0};
        } clock;
        int looks = 0;
        const auto daily = clock.every(24h, [&] { ++looks; });
        QTest::qWait(20);
        clock.slept = 72h;
        const auto awake = clock.uptime();
        clock.woke();
        QTRY_COMPARE(looks, 1); // Those that were missed are not made up for.
        QVERIFY(clock.uptime() - awake < 24h);
        clock.slept += 25h;
        const auto other = clock.every(10ms, [] {}); // Where nobody tells that it slept.
        QTRY_COMPARE(looks, 2);
    }

    void handlersMayEndTheirTimer()
    {
        SystemClock clock;
        int calls = 0;
        std::unique_ptr<RunningTimer> other = clock.every(30ms, [] {});
        std::unique_ptr<RunningTimer> self = clock.every(20ms, [&] {
            ++calls;
            other.reset();
            self.reset();
        });
        std::unique_ptr<RunningTimer> once = clock.after(30ms, [&] {
            ++calls;
            once.reset();
        });
        const auto dropped = [&] { (void)clock.after(10ms, [&] { calls += 100; }); };
        dropped();
        QTRY_COMPARE(calls, 2);
        QTest::qWait(150);
        QCOMPARE(calls, 2);
    }
};

REGISTER_TEST(SystemClockTest);
#include "SystemClockTest.moc"
