#include "Desktop/Time/SystemClock.h"
#include "Support/TestRegistry.h"

class SystemClockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fastTimersKeepTheirRateTogether()
    {
        SystemClock clock;
        int polls = 0;
        int ticks = 0;
        int alone = 0;
        auto lastPoll = 0ns;
        const auto poll = clock.every(33ms, [&] {
            ++polls;
            lastPoll = clock.uptime();
        });
        const auto tick = clock.every(50ms, [&] {
            ++ticks;
            alone += clock.uptime() - lastPoll > 2ms ? 1 : 0;
        });
        const auto start = clock.uptime();
        // A timer of its own sees when the machine holds the whole thread up; ticks may be lost only then.
        auto awake = start;
        double stalled = 0;
        QTimer witness;
        witness.callOnTimeout([&] {
            const auto gap = clock.uptime() - std::exchange(awake, clock.uptime());
            stalled += gap > 20ms ? std::chrono::duration<double>(gap).count() : 0;
        });
        witness.start(5ms);
        QTest::qWait(1500);
        const double seconds = std::chrono::duration<double>(clock.uptime() - start).count();
        QVERIFY2(polls >= (seconds - stalled) / 0.033 - 2, qPrintable(QString::number(polls)));
        QVERIFY2(ticks >= (seconds - stalled) / 0.050 - 2, qPrintable(QString::number(ticks)));
        QVERIFY2(polls <= seconds / 0.033 + 1 && ticks <= seconds / 0.050 + 1,
                 qPrintable(QString::number(ticks)));
        if (stalled > seconds / 10)
            QSKIP("the machine is too busy to see how they keep together");
        QVERIFY2(std::abs(polls * 33.0 / (ticks * 50.0) - 1) < 0.15, qPrintable(QString::number(polls)));
        QVERIFY2(alone < ticks / 2, qPrintable(QString::number(alone)));
    }

    void slowTimersAreNeverEarly()
    {
        SystemClock clock;
        const auto start = clock.uptime();
        int rings = 0;
        bool early = false;
        const auto noise = clock.every(20ms, [] {});
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
