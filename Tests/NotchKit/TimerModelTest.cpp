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

    void lengths_data()
    {
        const auto row = columns<QString, double>(); // 0: none
        row("minutes", u"45"_s, 2700);
        row("blanks", u" 7 "_s, 420);
        row("as it is shown", u"1:05"_s, 65);
        row("with hours", u"1:30:00"_s, 5400);
        row("other digits", u"\u0661\u0665"_s, 900);
        row("too short", u"0:10"_s, 60);
        row("too long", u"99999"_s, 10800);
        row("nothing", u""_s, 0);
        row("half of one", u"5:"_s, 0);
        row("too many parts", u"1:2:3:4"_s, 0);
        row("junk", u"-5"_s, 0);
        row("endless", u"9"_s.repeated(400), 0);
    }

    void lengths()
    {
        const auto [text, seconds] = fetched<QString, double>();
        Fakes::Core core;
        TimerModel &timer = *core.services.model<TimerModel>();
        QCOMPARE(timer.setLength(text), seconds > 0);
        QCOMPARE(timer.duration(), seconds > 0 ? seconds : 1500);
        timer.start(300);
        timer.setLength(u"9"_s);
        QCOMPARE(timer.duration(), 300.0);
    }

    void anEndIsShownUntilItIsSeen_data()
    {
        const auto row = columns<NotchTool, bool>();
        row("the pane", NotchTool::timer, true);
        row("the block on Home", NotchTool::home, true);
        row("another tool", NotchTool::note, false);
    }

    void anEndIsShownUntilItIsSeen()
    {
        const auto [tool, sees] = fetched<NotchTool, bool>();
        Fakes::Core core;
        core.settings.setColumn(HomeColumn::center, HomeWidget::timer);
        TimerModel &timer = *core.services.model<TimerModel>();
        core.services.start();
        timer.start(60);
        core.wait(3'600'000);
        QVERIFY(timer.finished() && timer.unseen() && core.services.hasActivity());
        core.show(tool);
        QCOMPARE(core.services.hasActivity(), !sees);
        core.show({});
        QCOMPARE(core.services.hasActivity(), !sees);
        QVERIFY(timer.finished()); // The pane goes on saying so.

        core.show(tool);
        timer.start(60);
        core.wait(60'000);
        QCOMPARE(timer.unseen(), !sees);
        timer.adjust(1);
        QVERIFY(!timer.finished() && !core.services.hasActivity());
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
