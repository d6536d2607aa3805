#include "Desktop/Location/GeoClueLocation.h"
#include "Async/Threads.h"
#include "Desktop/BusStandIn.h"

#include <QDBusObjectPath>
#include <QStandardPaths>

/// A value of a property, as a reply to the question for it.
static QDBusMessage valueReply(const QDBusMessage &call, const QVariant &value)
{
    return call.createReply(QVariant::fromValue(QDBusVariant(value)));
}

/// The adapter against a stand-in of GeoClue on a system bus of the test's own.
class GeoClueLocationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_service = std::make_unique<BusStandIn>(u"org.freedesktop.GeoClue2"_s);
        qunsetenv("QT_QTESTLIB_RUNNING"); // It hides the plugins that need their service from tests.
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_service->address().toLatin1());
    }
    void cleanupTestCase() { m_service.reset(); }

    void noServiceNoPlace()
    {
        GeoClueLocation location;
        const auto fix = location.locate();
        QVERIFY2(!fix.isFinished(), "the caller waited");
        QTRY_VERIFY(fix.isFinished());
        QVERIFY(!fix.result());
    }

    void fixes_data()
    {
        // refused: the call that the service refuses
        columns<QString, bool>();
        QTest::newRow("a place") << QString() << true;
        QTest::newRow("no client") << u"GetClient"_s << false;
        QTest::newRow("not allowed") << u"Start"_s << false;
    }

    void fixes()
    {
        const auto [refused, found] = fetched<QString, bool>();
        QVERIFY(m_service->appear([&](const QDBusMessage &call) { return answer(call, refused); }));
        auto location = std::make_unique<GeoClueLocation>();
        for (int i = 0; i < 2; ++i) {
            const auto fix = location->locate();
            QTRY_VERIFY(fix.isFinished());
            QCOMPARE(fix.result(), found ? std::optional(Coordinate{52.5, -13.25}) : std::nullopt);
        }
        QVERIFY(destroyed(location));
        const QString left = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
        QVERIFY2(!QFile::exists(left + u"/qtposition-geoclue2"_s), "the plugin's copy of the place is left");
    }

    void aSilentServiceIsGivenUp()
    {
        QVERIFY(m_service->appear([&](const QDBusMessage &call) { return answer(call, u"nothing"_s); }));
        m_silent = true;
        auto location = std::make_unique<GeoClueLocation>();
        auto fix = location->locate();
        QTRY_VERIFY(m_service->called().join(u' ').contains(u"Client.Start"_s));
        fix.cancel();
        QTRY_VERIFY(fix.isFinished());
        const auto left = location->locate();
        QVERIFY(destroyed(location) && left.isFinished());
        QCOMPARE(left.result(), std::nullopt);
    }

private:
    /// What is under way says goodbye to the stand-in, which is this thread's.
    static bool destroyed(std::unique_ptr<GeoClueLocation> &location)
    {
        location.reset();
        return QTest::qWaitFor([] { return Threads::waitForAll(0ms); });
    }

    std::optional<QDBusMessage> answer(const QDBusMessage &call, const QString &refused) const
    {
        if (call.member() == refused)
            return call.createErrorReply(QDBusError::AccessDenied, u"no"_s);
        if (call.member() == "GetClient"_L1)
            return call.createReply(QVariant::fromValue(QDBusObjectPath(u"/client"_s)));
        if (call.member() == "Start"_L1 && !m_silent) {
            m_service->signal(u"/client"_s, u"org.freedesktop.GeoClue2.Client"_s, u"LocationUpdated"_s,
                              {QVariant::fromValue(QDBusObjectPath(u"/"_s)),
                               QVariant::fromValue(QDBusObjectPath(u"/location"_s))});
        }
        if (call.member() == "Get"_L1) {
            const QString name = call.arguments().value(1).toString();
            if (name == "AvailableAccuracyLevel"_L1)
                return valueReply(call, 8U);
            return valueReply(call, name == "Latitude"_L1 ? 52.5 : name == "Longitude"_L1 ? -13.25 : 0.0);
        }
        return call.createReply();
    }

    std::unique_ptr<BusStandIn> m_service;
    bool m_silent = false;
};

REGISTER_TEST(GeoClueLocationTest);
#include "GeoClueLocationTest.moc"
