#include "Desktop/Session/DesktopSessionLock.h"
#include "Desktop/BusStandIn.h"

#include <QDBusObjectPath>

/// The lock of the session against stand-ins of those who tell of it, on one bus.
class DesktopSessionLockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saversTell_data()
    {
        texts({"org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver", "org.cinnamon.ScreenSaver",
               "org.mate.ScreenSaver", "org.xfce.ScreenSaver"});
    }

    void saversTell()
    {
        const auto [name] = fetched<QString>();
        const QString path = u'/' + QString(name).replace(u'.', u'/');
        BusStandIn saver(name);
        QVERIFY(saver.appear([](const QDBusMessage &call) { return call.createReply(true); }));
        const DesktopSessionLock lock(saver.bus(), saver.bus());
        QVERIFY(!lock.isLocked()); // Nobody waited.
        QTRY_VERIFY(lock.isLocked());
        QCOMPARE(saver.called(), QStringList(path + u' ' + name + u".GetActive"_s));
        const auto tell = [&](bool active) { saver.signal(path, name, u"ActiveChanged"_s, {active}); };
        tell(false);
        QTRY_VERIFY(!lock.isLocked());
        QSignalSpy changed(&lock, &SessionLock::changed);
        tell(true);
        tell(true);
        QTRY_VERIFY(lock.isLocked());
        ServiceStandIn stranger(saver.address(), u"example.Stranger"_s);
        stranger.signal(path, name, u"ActiveChanged"_s, {false});
        QVERIFY(stranger.appear({})); // The bus has passed the signal on.
        tell(true);
        QVERIFY(saver.leave()); // It crashed, or another takes its place.
        QTRY_VERIFY(!lock.isLocked());
        QCOMPARE(changed.size(), 2);
    }

    void logindTells()
    {
        const QString path = u"/org/freedesktop/login1/session/_37"_s;
        const QString session = u"org.freedesktop.login1.Session"_s;
        const auto value = [](bool hint) { return QVariant::fromValue(QDBusVariant(hint)); };
        BusStandIn logind(u"org.freedesktop.login1"_s);
        QVERIFY(logind.appear([&](const QDBusMessage &call) {
            return call.createReply(
                call.member() == "GetSession"_L1 ? QVariant::fromValue(QDBusObjectPath(path)) : value(true));
        }));
        const DesktopSessionLock lock(logind.bus(), logind.bus());
        QTRY_VERIFY(lock.isLocked());
        QCOMPARE(logind.called(),
                 QStringList({u"/org/freedesktop/login1 org.freedesktop.login1.Manager.GetSession"_s,
                              path + u" org.freedesktop.DBus.Properties.Get"_s}));
        const auto tell = [&](const QString &of, const QString &name, const QVariant &now) {
            logind.signal(path, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                          {of, QVariantMap{{name, now}}, QStringList()});
        };
        QSignalSpy changed(&lock, &SessionLock::changed);
        tell(session, u"IdleHint"_s, false);
        tell(u"org.freedesktop.login1.User"_s, u"LockedHint"_s, false);
        tell(session, u"LockedHint"_s, false);
        QTRY_VERIFY(!lock.isLocked());
        tell(session, u"LockedHint"_s, true);
        QTRY_VERIFY(lock.isLocked());
        QCOMPARE(changed.size(), 2);
    }
};

REGISTER_TEST(DesktopSessionLockTest);

#include "DesktopSessionLockTest.moc"
