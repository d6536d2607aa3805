#include "NotchKit/Tools/Timer/TimerModel.h"
#include "Support/Core.h"

class TimerModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void format_data()
    {
        columns<double, QString>();
        QTest::newRow("nothing") << 0.0 << "0:00";
        QTest::newRow("a begun second") << 0.1 << "0:01";
        QTest::newRow("rounds into the minute") << 59.2 << "1:00";
        QTest::newRow("five minutes") << 300.0 << "5:00";
        QTest::newRow("rounds into the hour") << 3599.5 << "1:00:00";
        QTest::newRow("three hours") << 10799.0 << "2:59:59";
    }

    void format()
    {
        const auto [seconds, text] = fetched<double, QString>();
        QCOMPARE(TimerModel::format(seconds), text);
    }

    void runsDownAndSoundsOnce()
    {
        Fakes::Core core;
        TimerModel &timer = *core.services.model<TimerModel>();
        core.services.start();
        timer.start(300);
        core.wait(299'000);
        QCOMPARE(timer.remaining(core.services.surroundings()->now()), 1.0);
        QVERIFY(timer.isRunning() && core.sounds.played.isEmpty());
        core.wait(1000);
        QVERIFY(!timer.isActive() && timer.finished());
        QCOMPARE(timer.remaining(core.services.surroundings()->now()), 300.0);
        core.wait(5000);
        QCOMPARE(core.sounds.played, QStringList{u"Glass"_s});
        timer.reset();
        QVERIFY(!timer.finished());
    }

    void pauseKeepsTheRemainder()
    {
        Fakes::Core core;
        TimerModel &timer = *core.services.model<TimerModel>();
        timer.start(900);
        core.wait(899'600);
        timer.pause();
        timer.pause();
        core.wait(60'000);
        QVERIFY(timer.isActive() && !timer.isRunning());
        QCOMPARE(*timer.pausedRemaining(), 0.4);
        timer.start();
        QCOMPARE(core.clock.now().msecsTo(*timer.endDate()), 400);
        QVERIFY(!timer.pausedRemaining());
        timer.reset();
        QCOMPARE(timer.remaining(core.clock.now()), 900.0);

        // A preset discards it.
        timer.start();
        core.wait(10'000);
        timer.pause();
        timer.start(300);
        QCOMPARE(timer.remaining(core.clock.now()), 300.0);
        QCOMPARE(timer.duration(), 300.0);
    }

    void adjustIsClampedAndOnlyWhileIdle()
    {
        Fakes::Core core;
        TimerModel &timer = *core.services.model<TimerModel>();
        timer.adjust(-100);
        QCOMPARE(timer.duration(), 60.0);
        timer.adjust(500);
        QCOMPARE(timer.duration(), 10800.0);
        timer.start();
        timer.adjust(-5);
        timer.pause();
        timer.adjust(-5);
        QCOMPARE(timer.duration(), 10800.0);
    }

    void activityOpensTheWings()
    {
        Fakes::Core core;
        TimerModel &timer = *core.services.model<TimerModel>();
        const QSignalSpy changes(&core.services, &NotchServices::hasActivityChanged);
        timer.start(300);
        QVERIFY(core.services.hasActivity());
        QCOMPARE(core.services.activityTool(), std::optional(NotchTool::timer));
        core.settings.setLiveActivities(false);
        QVERIFY(!core.services.hasActivity());
        core.settings.setLiveActivities(true);
        core.settings.setEnabled(NotchTool::timer, false);
        QVERIFY(!core.services.hasActivity());
        core.settings.setEnabled(NotchTool::timer, true);
        timer.pause();
        QVERIFY(!core.services.hasActivity() && !core.services.activityTool());
        QCOMPARE(changes.count(), 6);
    }

    void startShowsTheWholeLengthFirst()
    {
        Fakes::Core core;
        core.services.start();
        core.wait(700); // between two ticks
        core.services.model<TimerModel>()->start(300);
        QCOMPARE(TimerModel::format(
                     core.services.model<TimerModel>()->remaining(core.services.surroundings()->now())),
                 u"5:00"_s);
    }
};

REGISTER_TEST(TimerModelTest);
#include "TimerModelTest.moc"
