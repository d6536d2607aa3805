#include "Desktop/Camera/HelperCamera.h"
#include "Desktop/BusStandIn.h"
#include "EndToEnd/CameraServer.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDirIterator>

using Authorization = CameraAuthorization;

namespace {

const QString kPortal = u"org.freedesktop.portal.Desktop"_s;
const PictureShape kShape{{400, 120}, 12};

/// The folders of a user's own, for this process and what it starts.
struct Home
{
    Home()
    {
        for (const char *name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
            const QString path = folder.filePath(QString::fromLatin1(name));
            QDir().mkpath(path);
            qputenv(name, path.toLocal8Bit());
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS", portal.address().toLatin1());
    }

    QTemporaryDir folder;
    BusStandIn portal{kPortal};
};

/// The adapter with what it reports.
struct Stage
{
    explicit Stage(const QDBusConnection &bus, const QString &helper = QStringLiteral(KESTRUNE_CAMERA))
        : camera(bus, helper)
    {
        camera.installHandlers(
            {[this](const QImage &picture) { pictures.append(picture); }, [this] { ++lost; }});
    }

    bool configure()
    {
        const auto usable = camera.configure();
        return waitUntil([&] { return usable.isFinished(); }) && usable.result();
    }
    /// A picture of the running camera; null when none comes.
    QImage take(const PictureShape &shape = kShape)
    {
        pictures.clear();
        camera.requestPicture(shape);
        camera.requestPicture(shape);
        return waitUntil([&] { return !pictures.isEmpty(); }) ? pictures.constLast() : QImage();
    }

    HelperCamera camera;
    QList<QImage> pictures;
    int lost = 0;
};

qint64 count(const QString &folder) { return QDir(folder).entryList(QDir::AllEntries | QDir::System).size(); }

/// Child processes, of whichever thread.
qint64 childProcesses()
{
    qint64 all = 0;
    for (const QString &thread : QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        all += readFile(u"/proc/self/task/%1/children"_s.arg(thread)).count(' ');
    }
    return all;
}

/// Whether each thread of each process of the camera is behind both filters of calls.
bool isBehindWalls()
{
    int threads = 0;
    for (QDirIterator it(u"/proc"_s, QDir::Dirs | QDir::NoDotAndDotDot); it.hasNext();) {
        const QString process = it.next();
        if (QFileInfo(process + u"/exe"_s).symLinkTarget() != QLatin1String(KESTRUNE_CAMERA))
            continue;
        for (QDirIterator thread(process + u"/task"_s, QDir::Dirs | QDir::NoDotAndDotDot);
             thread.hasNext();) {
            ++threads;
            if (!readFile(thread.next() + u"/status"_s).contains("\nSeccomp_filters:\t2\n"))
                return false;
        }
    }
    return threads > 1;
}

/// Threads, open files and child processes of this process.
QList<qint64> holdings()
{
    return {count(u"/proc/self/task"_s), count(u"/proc/self/fd"_s), childProcesses()};
}

/// Memory of this process's own, in kilobytes: not that of files, of which it has a smaller share while other
/// tests run beside it.
qint64 memory()
{
    const QByteArray text = readFile(u"/proc/self/smaps_rollup"_s);
    qint64 all = 0;
    for (const char *kind : {"Pss_Anon:", "Pss_Shmem:"}) {
        const qsizetype place = text.indexOf(kind);
        if (place < 0)
            qFatal("the system does not tell %s", kind);
        all +=
            text.mid(place + qsizetype(qstrlen(kind)), 20).simplified().split(' ').constFirst().toLongLong();
    }
    return all;
}

} // namespace

/// The camera and its permission over a real PipeWire camera and a stand-in of the desktop's portal.
class HelperCameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksThePortal_data()
    {
        columns<QString, Authorization>();
        QTest::newRow("none") << u"none"_s << Authorization::authorized;
        QTest::newRow("no camera portal") << u"unknown"_s << Authorization::authorized;
        QTest::newRow("knows no camera") << u"absent"_s << Authorization::authorized;
        QTest::newRow("allows") << u"0"_s << Authorization::authorized;
        QTest::newRow("refuses") << u"1"_s << Authorization::denied;
        QTest::newRow("was dismissed") << u"2"_s << Authorization::denied;
        QTest::newRow("forbids") << u"forbids"_s << Authorization::restricted;
        QTest::newRow("ends") << u"ends"_s << Authorization::denied;
    }

    void asksThePortal()
    {
        const auto [behaviour, answer] = fetched<QString, Authorization>();
        BusStandIn portal(kPortal);
        if (behaviour != "none"_L1)
            QVERIFY(portal.appear([&](const QDBusMessage &call) { return reply(portal, call, behaviour); }));
        Stage stage(portal.bus());
        QCOMPARE(stage.camera.authorization(), Authorization::notDetermined);
        const auto allowed = stage.camera.requestAccess(true);
        QTRY_VERIFY(allowed.isFinished());
        QCOMPARE(allowed.result(), answer == Authorization::authorized);
        QCOMPARE(stage.camera.authorization(), answer);
        // Permission holds for a showing; after a refusal the portal is asked anew.
        QCOMPARE(stage.camera.authorization(),
                 answer == Authorization::authorized ? answer : Authorization::notDetermined);
        stage.camera.startRunning();
        stage.camera.stopRunning();
        QCOMPARE(stage.camera.authorization(), Authorization::notDetermined);
    }

    void asksTheUserOnlyWhereItMay_data()
    {
        // What the desktop remembers; whether the portal is asked without the user, and what comes of it.
        columns<QString, bool, Authorization>();
        QTest::newRow("nothing") << u""_s << false << Authorization::notDetermined;
        QTest::newRow("to ask") << u"ask"_s << false << Authorization::notDetermined;
        QTest::newRow("yes") << u"yes"_s << true << Authorization::authorized;
        QTest::newRow("no") << u"no"_s << true << Authorization::deniedBefore;
    }
    void asksTheUserOnlyWhereItMay()
    {
        const auto [remembered, isAsked, answer] = fetched<QString, bool, Authorization>();
        using Stored = QMap<QString, QStringList>;
        qDBusRegisterMetaType<Stored>();
        BusStandIn portal(kPortal);
        QVERIFY(portal.appear([&](const QDBusMessage &call) {
            return reply(portal, call, remembered == "yes"_L1 ? u"0"_s : u"1"_s);
        }));
        ServiceStandIn store(portal.address(), u"org.freedesktop.impl.portal.PermissionStore"_s);
        QVERIFY(store.appear([&](const QDBusMessage &call) {
            if (remembered.isEmpty())
                return call.createErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"none"_s);
            const Stored stored{{u"example.kestrune.Kestrune"_s, {remembered}}, {u"other"_s, {u"no"_s}}};
            return call.createReply({QVariant::fromValue(stored), QVariant::fromValue(QDBusVariant(0))});
        }));
        Stage stage(portal.bus());
        const auto allowed = stage.camera.requestAccess(false);
        QTRY_VERIFY(allowed.isFinished());
        QCOMPARE(stage.camera.authorization(), answer);
        QCOMPARE(portal.called().last().endsWith(u"AccessCamera"_s), isAsked);
        QCOMPARE(store.calls.constFirst().arguments(), (QVariantList{u"devices"_s, u"camera"_s}));
    }

    void listsTheCameras()
    {
        const Home home;
        CameraServer server(QProcessEnvironment::systemEnvironment());
        Stage stage(home.portal.bus());
        const auto listed = [&] {
            const auto cameras = stage.camera.cameras();
            const bool done = waitUntil([&] { return cameras.isFinished(); });
            return done ? cameras.result() : QList<CameraDevice>{{}, {}};
        };
        QCOMPARE(listed(), QList<CameraDevice>());
        QVERIFY(server.plugIn());
        const auto cameras = listed();
        QCOMPARE(cameras.size(), 1);
        QVERIFY(!cameras.constFirst().id.isEmpty() && !cameras.constFirst().name.isEmpty());
        for (const QString &chosen : {cameras.constFirst().id, u"not there"_s}) {
            stage.camera.choose(chosen);
            QVERIFY(stage.configure());
            stage.camera.startRunning();
            QVERIFY(!stage.take().isNull());
            stage.camera.stopRunning();
        }
    }

    void noCamera()
    {
        const Home home;
        QVERIFY(!Stage(home.portal.bus()).configure());
        Stage stage(home.portal.bus(), u"/nowhere"_s);
        const auto allowed = stage.camera.requestAccess(true);
        QTRY_VERIFY(allowed.isFinished());
        QVERIFY(allowed.result() && !stage.configure());
        // That was allowed because there was none: one that comes has to be asked for.
        QTRY_COMPARE(stage.camera.authorization(), Authorization::notDetermined);
        stage.camera.startRunning();
        QTRY_COMPARE(stage.lost, 1);
    }

    void showsTheCameraMirrored()
    {
        const Home home;
        CameraServer server(QProcessEnvironment::systemEnvironment());
        QVERIFY(server.plugIn());
        Stage stage(home.portal.bus());
        QVERIFY(stage.configure());
        QCOMPARE(server.state(), u"suspended"_s); // to look for it does not turn it on
        stage.camera.requestPicture(kShape);
        stage.camera.startRunning();
        QImage picture;
        for (const PictureShape &shape : {kShape, PictureShape{{90, 300}, 0}, kShape}) {
            picture = stage.take(shape);
            QCOMPARE(picture.size(), shape.size);
            QCOMPARE(stage.pictures.size(), 1); // two were requested
            const auto alpha = [&](QPoint place) { return qAlpha(picture.pixel(place)); };
            QCOMPARE(alpha({0, 0}) == 0 && alpha({shape.size.width() - 1, shape.size.height() - 1}) == 0,
                     shape.radius > 0);
            QCOMPARE(alpha({20, 20}), 255);
        }
        QVERIFY(isBehindWalls());
        const QColor left = picture.pixelColor(4, 40);
        const QColor right = picture.pixelColor(395, 40);
        QVERIFY(left.blue() > 150 && left.red() < 50 && left.green() < 50);
        QVERIFY(right.blue() > 150 && right.red() > 150 && right.green() > 150);

        // Pulled out, then plugged in again.
        QCOMPARE(server.state(), u"running"_s);
        QVERIFY(server.pullOut());
        QVERIFY(waitUntil([&] {
            stage.camera.requestPicture(kShape);
            return stage.lost == 1;
        }));
        stage.camera.startRunning();
        QTRY_COMPARE(stage.lost, 2);
        QVERIFY(server.plugIn());
        stage.camera.startRunning();
        QCOMPARE(stage.take().size(), kShape.size);
        QCOMPARE(stage.lost, 2);
    }

    void aLookThatIsGivenUpEndsQuietly()
    {
        const Home home;
        const qint64 others = childProcesses();
        Stage stage(home.portal.bus());
        QTest::failOnWarning(QRegularExpression(u"still running"_s));
        auto looking = stage.camera.configure();
        QVERIFY(waitUntil([&] { return childProcesses() > others; }));
        looking.cancel();
        QVERIFY(waitUntil([&] { return childProcesses() == others; }));
        QTest::qWait(100); // What is warned of comes from another thread.
    }

    void stopsAtOnceAndLeavesNothing()
    {
        const Home home;
        CameraServer server(QProcessEnvironment::systemEnvironment());
        QVERIFY(server.plugIn());
        const qint64 others = childProcesses();
        Stage stage(home.portal.bus());
        for (int i = 0; i < 3; ++i) {
            stage.camera.startRunning();
            QVERIFY(!stage.take().isNull());
            QCOMPARE(server.state(), u"running"_s);
            stage.camera.stopRunning();
            QVERIFY(waitUntil([&] { return server.state() != "running"_L1; }));
        }
        const auto settle = [&] {
            stage.pictures.clear();
            const bool ended = waitUntil([&] { return childProcesses() == others; });
            QTest::qWait(300);
            return ended;
        };
        QVERIFY(settle());
        const QList<qint64> held = holdings();
        const qint64 before = memory();
        for (int i = 0; i < 100; ++i) {
            stage.camera.startRunning();
            if (i % 10 == 0)
                QVERIFY(!stage.take().isNull());
            stage.camera.stopRunning();
            stage.camera.requestPicture(kShape);
        }
        QVERIFY(settle());
        QTRY_COMPARE(holdings(), held);
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        const qint64 slack = 65536; // They keep what was freed, or what was done with it.
#else
        const qint64 slack = 1024;
#endif
        QVERIFY2(memory() < before + slack, qPrintable(u"%1 kB from %2"_s.arg(memory()).arg(before)));
        QVERIFY(server.state() != "running"_L1);
        QCOMPARE(stage.lost, 0);
    }

private:
    /// What a portal of that behaviour does with a call.
    static std::optional<QDBusMessage> reply(BusStandIn &portal, const QDBusMessage &call,
                                             const QString &behaviour)
    {
        if (behaviour == "unknown"_L1)
            return call.createErrorReply(QDBusError::InvalidArgs, u"No such interface"_s);
        if (call.member() == "Get"_L1)
            return call.createReply(QVariant::fromValue(QDBusVariant(behaviour != "absent"_L1)));
        if (behaviour == "forbids"_L1)
            return call.createErrorReply(u"org.freedesktop.portal.Error.NotAllowed"_s, u"no"_s);
        QDBusConnection bus(portal.address() + kPortal);
        if (behaviour == "ends"_L1) {
            bus.unregisterService(kPortal);
            return {};
        }
        const QVariantMap options = qdbus_cast<QVariantMap>(call.arguments().value(0));
        const QString token = options.value(u"handle_token"_s).toString();
        const QString sender = call.service().mid(1).replace(u'.', u'_');
        const QString path = u"/org/freedesktop/portal/desktop/request/"_s + sender + u'/' + token;
        bus.send(call.createReply(QVariant::fromValue(QDBusObjectPath(path))));
        auto response = QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        response << behaviour.toUInt() << QVariantMap();
        bus.send(response);
        return {};
    }
};

REGISTER_TEST(HelperCameraTest);
#include "HelperCameraTest.moc"
