#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "Support/Core.h"

class NotchServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clocksRunWhileSomethingNeedsThem()
    {
        Fakes::Core core;
        core.settings.setEnabled(NotchTool::nowPlaying, false); // Its players have to be asked.
        core.services.start();
        core.services.start();
        QCOMPARE(core.clock.running(), 0U);
        core.wait(10'000);
        const QSignalSpy changes(core.services.surroundings(), &NotchSurroundings::nowChanged);
        core.services.setAnyExpanded(true);
        QCOMPARE(core.services.surroundings()->now(), core.clock.now());
        core.wait(10'000);
        QCOMPARE(changes.count(), 11);
        QCOMPARE(core.services.ticks(), 0);
        auto *prompter = core.services.model<TeleprompterModel>();
        core.services.show(NotchTool::teleprompter);
        prompter->setPlaying(true);
        core.wait(1000);
        QCOMPARE(core.services.ticks(), 20);
        core.services.stop();
        core.wait(10'000);
        QCOMPARE(changes.count(), 12);
        core.services.start();
        QCOMPARE(core.services.surroundings()->now(), core.clock.now());
        core.services.setAnyExpanded(false);
        core.services.show(std::nullopt);
        QCOMPARE(core.clock.running(), 0U);
    }

    void clocksRunForWhatGoesOnWhileClosed_data()
    {
        columns<NotchTool>();
        for (const NotchTool tool : {NotchTool::timer, NotchTool::captures, NotchTool::nowPlaying})
            QTest::newRow(qPrintable(rawValue(tool))) << tool;
    }

    void clocksRunForWhatGoesOnWhileClosed()
    {
        const auto [tool] = fetched<NotchTool>();
        Fakes::Core core;
        core.settings.setEnabled(NotchTool::nowPlaying, tool == NotchTool::nowPlaying);
        core.services.start();
        if (tool == NotchTool::timer) {
            core.services.model<TimerModel>()->start();
        } else if (tool == NotchTool::captures) {
            core.captures.handler();
            core.captures.found = {{u"/new.png"_s, core.clock.now(), core.clock.now()}};
            core.captures.handler();
        }
        QCOMPARE(core.clock.running(), 1U);
        core.settings.setEnabled(NotchTool::nowPlaying, false);
        core.wait(30 * 60 * 1000);
        QCOMPARE(core.clock.running(), 0U);
    }

    void addressesGoToTheWorkspace()
    {
        Fakes::Core core;
        core.services.surroundings()->openPrivacy(u"Privacy_Calendars"_s);
        QCOMPARE(core.workspace.opened.value(0).toString(),
                 u"x-apple.systempreferences:com.apple.preference.security?Privacy_Calendars"_s);
        QVERIFY(core.services.branding().creditURL->query() == "ref=kestrune"_L1);
        QVERIFY(!NotchBranding::none().creditURL && !NotchBranding::none().creditTitle);
    }
};

REGISTER_TEST(NotchServicesTest);
#include "NotchServicesTest.moc"
