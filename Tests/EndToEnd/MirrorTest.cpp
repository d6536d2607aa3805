#include "Desktop/BusStandIn.h"
#include "EndToEnd/CameraServer.h"
#include "EndToEnd/Stage.h"

#include <QDBusVariant>

/// The mirror with a real PipeWire camera.
class MirrorTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheCameraWhileItIsOpen()
    {
        CameraServer server(session().environment());
        QVERIFY(server.plugIn());
        QVERIFY(stage().run({{"hoverDelay", "60"}}) && stage().choose(u"mirror"_s));
        QTRY_VERIFY(server.state() != "running"_L1);
        QVERIFY(stage().openByHotKey());
        QTRY_VERIFY(isBlue(left) && isGrey(right));
        QCOMPARE(server.state(), u"running"_s);
        QVERIFY2(!maps().contains("libgst") && maps().contains("libQt6Quick"),
                 "the camera's libraries are in the program");

        QCOMPARE(session().command({u"close"_s}).status, 0);
        const qint64 used = timeUntil([&] { return server.state() != "running"_L1; });
        QVERIFY2(used >= 0 && used < 200, qPrintable(u"released after %1 ms"_s.arg(used)));

        // The picture does not freeze when the camera is pulled out; the next showing finds it again.
        QVERIFY(stage().waitClosed() && stage().openByHotKey());
        QTRY_VERIFY(isBlue(left));
        QVERIFY(server.pullOut());
        QTRY_COMPARE(stage().x.pixel(left), QColor(Qt::black));
        QVERIFY(stage().close() && server.plugIn() && stage().openByHotKey());
        QTRY_VERIFY(isBlue(left));

        session().program().killNow();
        QTRY_VERIFY2(server.state() != "running"_L1, "the camera outlives the program");
    }

    void comesBackByItself()
    {
        CameraServer server(session().environment());
        QVERIFY(stage().show(u"mirror"_s));
        QTRY_COMPARE(stage().x.pixel(left), QColor(Qt::black));
        QVERIFY(server.plugIn());
        QTRY_VERIFY(isBlue(left));
        QVERIFY(server.pullOut());
        QTRY_COMPARE(stage().x.pixel(left), QColor(Qt::black));
        QVERIFY(server.plugIn());
        QTRY_VERIFY(isBlue(left));
        QCOMPARE(session().command({u"close"_s}).status, 0);
        QTRY_VERIFY(server.state() != "running"_L1);
    }

    void comesBackAfterAServerThatHangs_data() { noAndYes("server", "manager"); }

    void comesBackAfterAServerThatHangs()
    {
        const auto [manager] = fetched<bool>();
        CameraServer server(session().environment());
        QVERIFY(server.plugIn() && stage().show(u"mirror"_s));
        QTRY_VERIFY(isBlue(left));
        QVERIFY(server.hang(manager));
        if (!manager)
            QTRY_COMPARE(stage().x.pixel(left), QColor(Qt::black));
        QVERIFY(stage().close() && server.plugIn() && stage().openByHotKey());
        QTRY_VERIFY(isBlue(left));
    }

    void aRefusalKeepsTheCameraOff()
    {
        CameraServer server(session().environment());
        QVERIFY(server.plugIn());
        const QString address = session().environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s);
        ServiceStandIn portal(address, u"org.freedesktop.portal.Desktop"_s);
        QVERIFY(portal.appear([](const QDBusMessage &call) -> std::optional<QDBusMessage> {
            if (call.member() == "Get"_L1)
                return call.createReply(QVariant::fromValue(QDBusVariant(true)));
            return call.createErrorReply(u"org.freedesktop.portal.Error.NotAllowed"_s, u"no"_s);
        }));
        QVERIFY(stage().show(u"mirror"_s));
        QTRY_VERIFY(stage().x.pixel(settingsButton).blue() > 200);
        // Before it, Qt 6.8 reads a property of the portal, which counts for nothing.
        const QStringList called = portal.called().filter(QRegularExpression(u"(Registry|Camera)\\.\\w+$"_s));
        QVERIFY(called.constFirst().endsWith(u"Registry.Register"_s));
        QVERIFY(portal.called().last().endsWith(u"Camera.AccessCamera"_s));
        QCOMPARE(server.state(), u"suspended"_s);
    }

private:
    bool isBlue(QPoint place)
    {
        const QColor colour = stage().x.pixel(place);
        return colour.blue() > 150 && colour.red() < 50;
    }
    bool isGrey(QPoint place)
    {
        const QColor colour = stage().x.pixel(place);
        return colour.blue() > 150 && colour.red() > 150;
    }
    QByteArray maps() { return readFile(u"/proc/%1/maps"_s.arg(session().program().processId())); }

    static constexpr QPoint left{320, 120};
    static constexpr QPoint right{960, 120};
    static constexpr QPoint settingsButton{592, 204};
};

REGISTER_TEST(MirrorTest);
#include "MirrorTest.moc"
