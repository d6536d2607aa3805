#include "Support/Core.h"

class NotchServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clocksRunBetweenStartAndStop()
    {
        Fakes::Core core;
        core.services.start();
        core.services.start();
        QCOMPARE(core.clock.running(), 2U);
        const QSignalSpy changes(core.services.surroundings(), &NotchSurroundings::nowChanged);
        core.wait(10'000);
        QCOMPARE(core.services.ticks(), 200);
        QCOMPARE(changes.count(), 10);
        QCOMPARE(core.services.surroundings()->now(), core.clock.now());
        core.services.stop();
        core.wait(10'000);
        QCOMPARE(core.services.ticks(), 200);
        QCOMPARE(changes.count(), 10);
        core.services.start();
        QCOMPARE(core.services.surroundings()->now(), core.clock.now());
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
