#include "App/AppMenu.h"
#include "App/AppStage.h"
#include "App/TrayIcon.h"
#include "Desktop/BusStandIn.h"
#include "Desktop/Tray/BusStatusItem.h"
#include "Desktop/TrayReader.h"

namespace {

/// A panel on a bus of its own, and the application with its menu in it.
struct Stage : AppStage
{
    BusStandIn watcher{u"org.kde.StatusNotifierWatcher"_s};
    TrayReader panel{QDBusConnection::connectToBus(watcher.address(), u"panel"_s),
                     watcher.bus().baseService()};
    Fakes::FakeUpdater updater;
    std::unique_ptr<BusStatusItem> item;
    std::unique_ptr<AppMenu> menu;

    Stage()
    {
        launch();
        item = std::make_unique<BusStatusItem>(watcher.bus(), u"Kestrune"_s, trayIcon);
        menu = std::make_unique<AppMenu>(*app, updater, *item);
    }
    ~Stage() { QDBusConnection::disconnectFromBus(u"panel"_s); }
    Q_DISABLE_COPY_MOVE(Stage)

    bool watch()
    {
        return watcher.appear([](const QDBusMessage &call) { return call.createReply(); }) &&
               waitUntil([this] { return !watcher.calls.isEmpty(); });
    }

    /// Each entry on a line: its label, "off" where it is disabled, its keys.
    QStringList lines()
    {
        QStringList lines;
        for (const auto &[id, properties, children] : panel.entries()) {
            const auto keys =
                qdbus_cast<QList<QStringList>>(properties.value(u"shortcut"_s)).value(0).join(u'+');
            const QString off = properties.value(u"enabled"_s, true).toBool() ? QString() : u"off"_s;
            lines.append((properties.value(u"type"_s).toString() + properties.value(u"label"_s).toString() +
                          u' ' + off + u' ' + keys)
                             .simplified());
        }
        return lines;
    }

    void choose(int id)
    {
        panel.choose(id);
        QCoreApplication::processEvents();
    }
    int idOf(const QString &label) const { return panel.entry(label).value_or(WireLayout{-1, {}, {}}).id; }
    void pause(bool on)
    {
        setSuite(on, on);
        clock.advance(3s);
    }
};

} // namespace

/// The menu in the desktop's panel, as a panel reads it from the bus.
class AppMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entriesFollowTheState()
    {
        Stage stage;
        QVERIFY(stage.watch());
        const QStringList rest{u"Settings…"_s, u"Check for Updates… off"_s, u"Get more tools: Fennivar ↗"_s,
                               u"separator"_s, u"Quit Kestrune"_s};
        const QStringList running = QStringList{u"Open Notch Control+Alt+Super+n"_s} + rest;
        QCOMPARE(stage.lines(), running);
        stage.pause(true);
        QCOMPARE(stage.lines(), QStringList({u"Fennivar’s notch is on, so Kestrune is paused. off"_s,
                                             u"Turn off Notch in Fennivar to use Kestrune. off"_s,
                                             u"separator"_s, u"Open Notch off"_s}) +
                                    rest);
        stage.pause(false);
        QCOMPARE(stage.lines(), running);
        stage.app->settings().setShortcutEnabled(false);
        QCOMPARE(stage.lines().value(0), u"Open Notch"_s);
        stage.updater.setCanCheck(true);
        QCOMPARE(stage.lines().value(2), u"Check for Updates…"_s);
    }

    void entriesActAndOldOnesDoNot()
    {
        Stage stage;
        QVERIFY(stage.watch());
        const int open = stage.idOf(u"Open Notch"_s);
        stage.choose(open);
        QVERIFY(stage.model().expanded());
        stage.choose(stage.idOf(u"Settings…"_s));
        QCOMPARE(stage.settingsOpened, 1);
        stage.choose(stage.idOf(u"Check for Updates…"_s));
        QCOMPARE(stage.updater.checks, 0); // It is disabled.
        stage.updater.setCanCheck(true);
        stage.choose(stage.idOf(u"Check for Updates…"_s));
        QCOMPARE(stage.updater.checks, 1);
        stage.choose(stage.idOf(u"Get more tools: Fennivar ↗"_s));
        QCOMPARE(stage.workspace.opened, QList{QUrl(u"https://fennivar.example/?ref=kestrune"_s)});
        stage.choose(open); // Of the menu before.
        QVERIFY(stage.model().expanded());
        QCOMPARE(stage.panel.askMenu(u"GetLayout"_s, {open, -1, QStringList()}).type(),
                 QDBusMessage::ErrorMessage);
        QTimer::singleShot(60s, qApp, [] { QCoreApplication::exit(1); });
        QTimer::singleShot(0ms, qApp, [&] { stage.choose(stage.idOf(u"Quit Kestrune"_s)); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

    void comesAndGoesWithTheWatcher()
    {
        Stage stage;
        const auto title = [&] {
            return stage.panel.ask(u"/StatusNotifierItem"_s, u"org.freedesktop.DBus.Properties"_s,
                                   u"GetAll"_s, {u"org.kde.StatusNotifierItem"_s});
        };
        QCOMPARE(title().type(), QDBusMessage::ErrorMessage);
        QVERIFY(stage.watch());
        QCOMPARE(stage.watcher.called(),
                 QStringList(
                     u"/StatusNotifierWatcher org.kde.StatusNotifierWatcher.RegisterStatusNotifierItem"_s));
        QCOMPARE(stage.watcher.calls.constFirst().arguments(),
                 QVariantList{stage.watcher.bus().baseService()});
        const auto face = qdbus_cast<QVariantMap>(title().arguments().value(0));
        QCOMPARE(face.value(u"Title"_s).toString(), u"Kestrune"_s);
        QVERIFY(face.value(u"ItemIsMenu"_s).toBool());
        QCOMPARE(face.value(u"Menu"_s).value<QDBusObjectPath>().path(), u"/MenuBar"_s);
        const QVariant many = QVariant::fromValue(QList<int>(1000));
        const auto refused = stage.panel.askMenu(u"GetGroupProperties"_s, {many, QStringList()});
        QCOMPARE(refused.errorName(), u"org.freedesktop.DBus.Error.LimitsExceeded"_s);
        const auto icons = qdbus_cast<WirePixmaps>(face.value(u"IconPixmap"_s));
        for (const WirePixmap &icon : icons) {
            QCOMPARE(icon.pixels.size(), icon.width * icon.height * 4);
            const qsizetype solid = icon.pixels.count('\xff');
            QVERIFY2(solid > icon.width && solid < icon.width * icon.height * 3, "nothing, or all of it");
        }
        QVERIFY(icons.size() > 2);
        stage.watcher.leave();
        QTRY_COMPARE(title().type(), QDBusMessage::ErrorMessage);
        QVERIFY(stage.watch());
        QTRY_COMPARE(stage.watcher.calls.size(), 2);
        QCOMPARE(stage.lines().size(), 6);
    }
};

REGISTER_TEST(AppMenuTest);
#include "AppMenuTest.moc"
