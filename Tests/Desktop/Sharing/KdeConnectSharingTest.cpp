#include "Desktop/Sharing/KdeConnectSharing.h"
#include "Desktop/BusStandIn.h"

#include <QDBusMetaType>

/// The adapter against a stand-in of the service: what is asked of it, and what comes of its answers.
class KdeConnectSharingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qDBusRegisterMetaType<QMap<QString, QString>>(); }

    void devicesThatTakeFilesAreFound()
    {
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QVERIFY(service.appear([](const QDBusMessage &call) -> std::optional<QDBusMessage> {
            if (call.member() == "deviceNames"_L1) {
                return call.createReply(
                    QVariant::fromValue(QMap<QString, QString>{{u"_1_"_s, u"Telefon"_s},
                                                               {u"_2_"_s, u"タブレット"_s},
                                                               {u"_3_"_s, u"Old one"_s},
                                                               {u"_4_"_s, u"Gone"_s},
                                                               {u"_5_"_s, u"Hangs"_s},
                                                               {u"_6_"_s, u"Laptop 50%"_s},
                                                               {u"not/an object path!"_s, u"Odd"_s}}));
            }
            if (call.path().contains("_4_"_L1))
                return call.createErrorReply(QDBusError::UnknownObject, u"it left"_s);
            if (call.path().contains("_5_"_L1))
                return std::nullopt;
            return call.createReply(!call.path().contains("_3_"_L1));
        }));
        QCOMPARE(devicesOf(service),
                 (QList<SharingDevice>{
                     {u"_6_"_s, u"Laptop 50%"_s}, {u"_1_"_s, u"Telefon"_s}, {u"_2_"_s, u"タブレット"_s}}));
        QCOMPARE(service.called().constFirst(),
                 u"/modules/kdeconnect org.kde.kdeconnect.daemon.deviceNames"_s);
        QCOMPARE(service.calls.constFirst().arguments(), (QVariantList{true, true}));
        QVERIFY(service.called().contains(
            u"/modules/kdeconnect/devices/_1_ org.kde.kdeconnect.device.hasPlugin"_s));
        QCOMPARE(service.calls.at(1).arguments(), QVariantList{u"kdeconnect_share"_s});
    }

    void noServiceMeansNoDevices_data()
    {
        columns<bool, QVariant>();
        QTest::newRow("not running") << false << QVariant();
        QTest::newRow("hanging") << true << QVariant();
        QTest::newRow("of another kind") << true << QVariant(u"hello"_s);
        QTest::newRow("without devices") << true << QVariant::fromValue(QMap<QString, QString>());
    }

    void noServiceMeansNoDevices()
    {
        const auto [present, answer] = fetched<bool, QVariant>();
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QVERIFY(!present || service.appear([&](const QDBusMessage &call) {
            return answer.isValid() ? std::optional(call.createReply(answer)) : std::nullopt;
        }));
        QCOMPARE(devicesOf(service), QList<SharingDevice>());
    }

    void onlySoManyDevicesAreAsked()
    {
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QMap<QString, QString> many;
        for (int i = 0; i < 1000; ++i)
            many.insert(u"_%1_"_s.arg(i), QString(1000, u'x'));
        QVERIFY(service.appear([&](const QDBusMessage &call) {
            return call.createReply(call.member() == "deviceNames"_L1 ? QVariant::fromValue(many)
                                                                      : QVariant(true));
        }));
        const auto devices = devicesOf(service);
        QCOMPARE(devices.size(), 64);
        QCOMPARE(devices.constFirst().name.size(), 200);
        QCOMPARE(service.calls.size(), 65);
    }

    void anEndedAdapterStillAnswers()
    {
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QVERIFY(service.appear([](const QDBusMessage &) { return std::nullopt; }));
        auto sharing = std::make_unique<KdeConnectSharing>(service.bus());
        const auto devices = sharing->devices();
        sharing.reset();
        QTRY_VERIFY(devices.isFinished());
        QVERIFY(devices.result().isEmpty());
    }

    void filesAreHandedOver()
    {
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QVERIFY(service.appear([](const QDBusMessage &call) { return call.createReply(); }));
        KdeConnectSharing(QDBusConnection(QString())).send(u"_1_"_s, {QUrl(u"file:///no bus"_s)});
        KdeConnectSharing sharing(service.bus());
        sharing.send(u"_1_"_s, {QUrl::fromLocalFile(u"/tmp/50% of it #1"_s),
                                QUrl::fromLocalFile(u"/tmp/Grüße 日本"_s)});
        QTRY_COMPARE(
            service.called(),
            QStringList{
                u"/modules/kdeconnect/devices/_1_/share org.kde.kdeconnect.device.share.shareUrls"_s});
        QCOMPARE(service.calls.constFirst().arguments(),
                 QVariantList{QStringList({u"file:///tmp/50%25%20of%20it%20%231"_s,
                                           u"file:///tmp/Gr%C3%BC%C3%9Fe%20%E6%97%A5%E6%9C%AC"_s})});
    }

private:
    /// What the adapter finds, without its caller's waiting.
    static QList<SharingDevice> devicesOf(const BusStandIn &service)
    {
        KdeConnectSharing sharing(service.bus());
        const auto devices = sharing.devices();
        const bool waited = devices.isFinished();
        const bool found = waitUntil([&] { return devices.isFinished(); });
        return !waited && found ? devices.result() : QList<SharingDevice>{{u"waited"_s, u"for nothing"_s}};
    }
};

REGISTER_TEST(KdeConnectSharingTest);
#include "KdeConnectSharingTest.moc"
