#include "Desktop/Sharing/DesktopSharing.h"
#include "Desktop/BusStandIn.h"

#include <QDBusMetaType>

using Objects = QMap<QDBusObjectPath, QMap<QString, QVariantMap>>;

/// Of an action: enabled, the type of its parameter, no state.
struct Description
{
    bool enabled = false;
};
Q_DECLARE_METATYPE(Description)

static QDBusArgument &operator<<(QDBusArgument &argument, const Description &description)
{
    argument.beginStructure();
    argument << description.enabled << QDBusSignature(u"(sb)"_s) << QVariantList();
    argument.endStructure();
    return argument;
}

static const QDBusArgument &operator>>(const QDBusArgument &argument, Description &) { return argument; }

/// The adapter against a stand-in of the service: what is asked of it, and what comes of its answers.
class DesktopSharingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qDBusRegisterMetaType<QMap<QString, QString>>();
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
        qDBusRegisterMetaType<Objects>();
        qDBusRegisterMetaType<Description>();
    }

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
        columns<bool, QVariant, bool>();
        QTest::newRow("not running") << false << QVariant() << false;
        QTest::newRow("hanging") << true << QVariant() << true;
        QTest::newRow("of another kind") << true << QVariant(u"hello"_s) << true;
        QTest::newRow("without devices") << true << QVariant::fromValue(QMap<QString, QString>()) << true;
    }

    void noServiceMeansNoDevices()
    {
        const auto [present, answer, served] = fetched<bool, QVariant, bool>();
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QVERIFY(!present || service.appear([&](const QDBusMessage &call) {
            return answer.isValid() ? std::optional(call.createReply(answer)) : std::nullopt;
        }));
        QCOMPARE(devicesOf(service, served), QList<SharingDevice>());
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
        auto sharing = std::make_unique<DesktopSharing>(service.bus());
        const auto devices = sharing->devices();
        sharing.reset();
        QTRY_VERIFY(devices.isFinished());
        QVERIFY(devices.result().devices.isEmpty());
    }

    void filesAreHandedOver()
    {
        BusStandIn service(u"org.kde.kdeconnect"_s);
        QVERIFY(service.appear([](const QDBusMessage &call) { return call.createReply(); }));
        DesktopSharing unconnected{QDBusConnection(QString())};
        QVERIFY(!outcome(unconnected.send(u"_1_"_s, {QUrl(u"file:///no bus"_s)})));
        DesktopSharing sharing(service.bus());
        const auto sent = sharing.send(u"_1_"_s, {QUrl::fromLocalFile(u"/tmp/50% of it #1"_s),
                                                  QUrl::fromLocalFile(u"/tmp/Grüße 日本"_s)});
        QTRY_COMPARE(
            service.called(),
            QStringList{
                u"/modules/kdeconnect/devices/_1_/share org.kde.kdeconnect.device.share.shareUrls"_s});
        QVERIFY(outcome(sent));
        QCOMPARE(service.calls.constFirst().arguments(),
                 QVariantList{QStringList({u"file:///tmp/50%25%20of%20it%20%231"_s,
                                           u"file:///tmp/Gr%C3%BC%C3%9Fe%20%E6%97%A5%E6%9C%AC"_s})});
    }

    void devicesOfGnomesServiceTakeFilesAsActions()
    {
        const QString root = u"/org/gnome/Shell/Extensions/GSConnect"_s;
        const auto path = [&](const QString &device) { return root + u"/Device/"_s + device; };
        const auto device = [](const QString &name, bool connected, bool paired) {
            return QMap<QString, QVariantMap>{
                {u"org.gnome.Shell.Extensions.GSConnect.Device"_s,
                 {{u"Name"_s, name}, {u"Connected"_s, connected}, {u"Paired"_s, paired}}}};
        };
        const Objects objects{{QDBusObjectPath(path(u"phone"_s)), device(u"Téléphone"_s, true, true)},
                              {QDBusObjectPath(path(u"away"_s)), device(u"Away"_s, false, true)},
                              {QDBusObjectPath(path(u"foreign"_s)), device(u"Foreign"_s, true, false)},
                              {QDBusObjectPath(path(u"full"_s)), device(u"Full"_s, true, true)},
                              {QDBusObjectPath(path(u"odd"_s)), {}}};
        BusStandIn service(u"org.gnome.Shell.Extensions.GSConnect"_s);
        QVERIFY(service.appear([&](const QDBusMessage &call) {
            if (call.member() == "GetManagedObjects"_L1)
                return call.createReply(QVariant::fromValue(objects));
            if (call.member() == "Describe"_L1)
                return call.createReply(QVariant::fromValue(Description{call.path() == path(u"phone"_s)}));
            return call.path() == path(u"phone"_s) ? call.createReply()
                                                   : call.createErrorReply(QDBusError::Failed, u"it left"_s);
        }));
        const SharingDevice phone{path(u"phone"_s), u"Téléphone"_s};
        QCOMPARE(devicesOf(service), QList<SharingDevice>{phone});

        service.calls.clear();
        DesktopSharing sharing(service.bus());
        const QList<QUrl> files{QUrl::fromLocalFile(u"/tmp/50% #1"_s), QUrl::fromLocalFile(u"/tmp/ü"_s)};
        QVERIFY(outcome(sharing.send(phone.id, files)));
        QVERIFY(!outcome(sharing.send(path(u"full"_s), files)));
        QCOMPARE(service.called().constFirst(), path(u"phone"_s) + u" org.gtk.Actions.Activate"_s);
        QCOMPARE(service.calls.at(1).signature(), u"sava{sv}"_s);
        const auto parameters = qdbus_cast<QVariantList>(service.calls.at(1).arguments().at(1));
        const auto file = qvariant_cast<QDBusArgument>(parameters.constFirst());
        QCOMPARE(file.currentSignature(), u"(sb)"_s);
        QString address;
        bool opens = true;
        file.beginStructure();
        file >> address >> opens;
        file.endStructure();
        QCOMPARE(address, u"file:///tmp/%C3%BC"_s);
        QVERIFY(!opens);
    }

private:
    static bool outcome(const QFuture<bool> &sent)
    {
        return waitUntil([&] { return sent.isFinished(); }) && sent.result();
    }

    /// What the adapter finds, without its caller's waiting.
    static QList<SharingDevice> devicesOf(const BusStandIn &service, bool served = true)
    {
        DesktopSharing sharing(service.bus());
        const auto devices = sharing.devices();
        const bool waited = devices.isFinished();
        const bool found = waitUntil([&] { return devices.isFinished(); });
        return !waited && found && devices.result().served == served
                   ? devices.result().devices
                   : QList<SharingDevice>{{u"waited"_s, u"for nothing"_s}};
    }
};

REGISTER_TEST(DesktopSharingTest);
#include "DesktopSharingTest.moc"
