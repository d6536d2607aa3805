#include "Desktop/Notifications/BusNotifications.h"
#include "Desktop/BusStandIn.h"

/// The desktop's notifications against a stand-in of their service; EndToEnd/TimerTest has a real one.
class BusNotificationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneIsShownAndWithdrawn()
    {
        BusStandIn service(kService);
        QVERIFY(service.appear([&](const QDBusMessage &call) { return call.createReply(7U); }));
        BusNotifications notifications(service.bus());
        notifications.withdraw();
        notifications.show(u"Title"_s, u"Text"_s);
        QTRY_COMPARE(methods(service), QStringList{u"Notify"_s});
        const QVariantList told = service.calls.constFirst().arguments();
        QCOMPARE(told.mid(3, 2), (QVariantList{u"Title"_s, u"Text"_s}));
        QCOMPARE(told.at(7), 0); // It stays.
        QCoreApplication::processEvents();
        QTest::qWait(50);
        notifications.withdraw();
        notifications.withdraw();
        QTRY_COMPARE(methods(service), (QStringList{u"Notify"_s, u"CloseNotification"_s}));
        QCOMPARE(service.calls.constLast().arguments(), QVariantList{7U});
    }

    void withdrawnBeforeItIsThere()
    {
        std::optional<QDBusMessage> asked;
        BusStandIn service(kService);
        QVERIFY(service.appear([&](const QDBusMessage &call) {
            asked = call;
            return std::optional<QDBusMessage>();
        }));
        BusNotifications notifications(service.bus());
        notifications.show(u"Title"_s, u"Text"_s);
        notifications.withdraw();
        QTRY_VERIFY(asked);
        service.send(asked->createReply(9U));
        QTRY_COMPARE(methods(service), (QStringList{u"Notify"_s, u"CloseNotification"_s}));
        QCOMPARE(service.calls.constLast().arguments(), QVariantList{9U});
    }

    void theUserClicksAndPutsAway()
    {
        BusStandIn service(kService);
        QVERIFY(service.appear([&](const QDBusMessage &call) { return call.createReply(7U); }));
        BusNotifications notifications(service.bus());
        QSignalSpy activated(&notifications, &Notifications::activated);
        QSignalSpy dismissed(&notifications, &Notifications::dismissed);
        const auto tell = [&](const QString &signal, const QVariantList &arguments) {
            service.signal(u"/org/freedesktop/Notifications"_s, kService, signal, arguments);
        };
        notifications.show(u"Title"_s, u"Text"_s);
        QTRY_COMPARE(service.calls.size(), 1);
        QTest::qWait(50);
        tell(u"ActionInvoked"_s, {8U, u"default"_s}); // another program's
        tell(u"NotificationClosed"_s, {8U, 2U});
        tell(u"ActionInvoked"_s, {7U, u"default"_s});
        tell(u"NotificationClosed"_s, {7U, 2U});
        tell(u"NotificationClosed"_s, {7U, 2U}); // It is gone.
        QTRY_COMPARE(dismissed.count(), 1);
        QVERIFY(holdsFor([&] { return activated.count() == 1 && dismissed.count() == 1; }, 200));
    }

private:
    static QStringList methods(const ServiceStandIn &service)
    {
        return each(service.calls, &QDBusMessage::member);
    }

    const QString kService = u"org.freedesktop.Notifications"_s;
};

REGISTER_TEST(BusNotificationsTest);
#include "BusNotificationsTest.moc"
