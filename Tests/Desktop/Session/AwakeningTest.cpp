#include "Desktop/BusStandIn.h"
#include "Desktop/Reachability/BusNetworkReturn.h"
#include "Desktop/Session/LogindSleep.h"

/// Waking up and the network's return, against stand-ins of those who tell of them.
class AwakeningTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void logindTells()
    {
        BusStandIn logind(u"org.freedesktop.login1"_s);
        const LogindSleep sleep(logind.bus());
        QVERIFY(logind.appear({})); // It may start later.
        QSignalSpy woke(&sleep, &SystemSleep::woke);
        for (const bool starts : {true, false})
            logind.signal(u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s,
                          u"PrepareForSleep"_s, {starts});
        QTRY_COMPARE(woke.count(), 1);
        QVERIFY(holdsFor([&] { return woke.count() == 1; }, 200));
    }

    void networkManagerTells()
    {
        const QString name = u"org.freedesktop.NetworkManager"_s;
        BusStandIn manager(name);
        QVERIFY(manager.appear({}));
        const BusNetworkReturn network(QDBusConnection(QString()), manager.bus());
        QSignalSpy returned(&network, &NetworkReturn::returned);
        for (const uint state : {10U, 20U, 40U, 50U, 70U}) // asleep, away, connecting, local, global
            manager.signal(u"/org/freedesktop/NetworkManager"_s, name, u"StateChanged"_s, {state});
        QTRY_COMPARE(returned.count(), 1);
        QVERIFY(holdsFor([&] { return returned.count() == 1; }, 200) && manager.calls.isEmpty());
    }

    void thePortalTells()
    {
        bool available = false;
        BusStandIn portal(u"org.freedesktop.portal.Desktop"_s);
        QVERIFY(portal.appear([&](const QDBusMessage &call) { return call.createReply(available); }));
        const BusNetworkReturn network(portal.bus(), QDBusConnection(QString()));
        QSignalSpy returned(&network, &NetworkReturn::returned);
        const auto change = [&](bool now) {
            available = now;
            portal.signal(u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.NetworkMonitor"_s,
                          u"changed"_s, {});
        };
        change(false);
        QTRY_COMPARE(portal.calls.size(), 1);
        QVERIFY(holdsFor([&] { return returned.isEmpty(); }, 200));
        change(true);
        QTRY_COMPARE(returned.count(), 1);
    }
};

REGISTER_TEST(AwakeningTest);
#include "AwakeningTest.moc"
