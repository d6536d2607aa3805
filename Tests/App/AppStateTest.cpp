#include "App/AppState.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

#include <QTest>

using namespace Kestrune;

namespace {

QString suite() { return NotchBranding::suiteIdentifier(); }
QString flag() { return QStringLiteral("notch.enabled"); }
QString welcomed() { return QStringLiteral("kestrune.welcomed"); }

/// The application over fake ports; `launch` starts it.
struct Stage
{
    Fakes::FakeClock clock;
    Fakes::MemoryDefaults defaults;
    Fakes::MemoryDefaults suiteDefaults;
    Fakes::FakeApplications applications;
    Fakes::FakeLoginItem loginItem;
    Fakes::FakeSounds sounds;
    Fakes::FakeWorkspace workspace;
    Fakes::FakePasteboard pasteboard;
    Fakes::FakeDrags drags;
    Fakes::FakeSharing sharing;
    Fakes::FakeCaptureQuery captures;
    Fakes::FakeThumbnails thumbnails;
    Fakes::FakeHttp http;
    Fakes::FakeLocation location;
    Fakes::FakeScripts scripts;
    Fakes::FakeHost host;
    Fakes::FakeCamera camera;
    Fakes::FakeCalendars calendars;
    Fakes::FakeDisplays displays;
    Fakes::FakePointer pointer;
    Fakes::FakePanels panels;
    Fakes::FakeHotKeys hotKeys;
    QStringList alerts;
    std::unique_ptr<AppState> app;

    explicit Stage(bool welcomedBefore = true)
    {
        displays.displays = {{QStringLiteral("HDMI-1"), QRectF(0, 0, 1920, 1080), 0, {}, {}}};
        if (welcomedBefore)
            defaults.setObject(welcomed(), true);
    }

    void launch(const QStringList &arguments = {})
    {
        const AppPlatform platform{
            defaults, suiteDefaults, applications, loginItem,
            [this](const QString &message, const QString &details) { alerts << message << details; }};
        app = std::make_unique<AppState>(
            platform,
            NotchPlatform{clock, defaults, sounds, workspace, pasteboard, drags, sharing, captures,
                          thumbnails, http, location, applications, scripts, host, camera, calendars},
            NotchControllerPlatform{clock, displays, pointer, panels, hotKeys, drags},
            LaunchRequest::parse(arguments));
    }

    void setSuite(bool running, bool notch)
    {
        applications.running = running ? QSet<QString>{suite()} : QSet<QString>();
        suiteDefaults.setObject(flag(), notch);
    }

    const NotchScreenModel &model() const { return *app->controller().notches().at(0).model; }
};

} // namespace

class AppStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void launchRequests_data();
    void launchRequests();
    void firstRunOpensHome();
    void suitePausesTheNotch();
    void pausedNotchExplainsItself();
    void loginItemSpringsBack();
    void displaySettingsApplyAtOnce();
};

void AppStateTest::launchRequests_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<QString>("selected");
    QTest::newRow("none") << "" << false << "home";
    QTest::newRow("a tool") << "--open timer" << true << "timer";
    QTest::newRow("no tool") << "--open" << true << "home";
    QTest::newRow("unknown tool") << "--open sundial" << true << "home";
}

void AppStateTest::launchRequests()
{
    QFETCH(const QString, arguments);
    QFETCH(const bool, opens);
    QFETCH(const QString, selected);
    Stage stage;
    stage.launch(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    stage.clock.advance(std::chrono::milliseconds(999));
    QVERIFY(!stage.model().expanded());
    stage.clock.advance(std::chrono::milliseconds(1));
    QCOMPARE(stage.model().expanded(), opens);
    QCOMPARE(rawValue(stage.model().selected()), selected);
    QVERIFY(!stage.panels.alive.at(0)->key);
}

void AppStateTest::firstRunOpensHome()
{
    Stage stage(false);
    stage.launch({QStringLiteral("--open"), QStringLiteral("timer")});
    QVERIFY(*stage.defaults.value<bool>(welcomed()));
    stage.clock.advance(std::chrono::seconds(1));
    QCOMPARE(stage.model().selected(), NotchTool::home);
    QVERIFY(stage.model().expanded());
}

void AppStateTest::suitePausesTheNotch()
{
    Stage stage;
    stage.setSuite(true, true);
    stage.launch();
    QVERIFY(!stage.app->controller().isRunning() && stage.app->yieldingToFennivar());
    stage.setSuite(true, false);
    stage.clock.advance(std::chrono::seconds(3));
    QVERIFY(stage.app->controller().isRunning() && !stage.app->yieldingToFennivar());
    stage.app->controller().stop();
    stage.clock.advance(std::chrono::seconds(3));
    QVERIFY2(stage.app->controller().isRunning(), "a notch stopped some other way is started again");
    stage.setSuite(true, true);
    stage.clock.advance(std::chrono::seconds(3));
    QVERIFY(stage.panels.alive.empty());
    stage.setSuite(false, true);
    stage.clock.advance(std::chrono::seconds(3));
    QCOMPARE(stage.panels.alive.size(), 1U);
}

void AppStateTest::pausedNotchExplainsItself()
{
    Stage stage;
    stage.setSuite(true, true);
    stage.launch();
    stage.app->showNotch(NotchTool::home);
    stage.app->toggle();
    const QStringList alert{QStringLiteral("Fennivar’s notch is on, so Kestrune is paused."),
                            QStringLiteral("Turn off Notch in Fennivar to use Kestrune.")};
    QCOMPARE(stage.alerts, alert + alert);
}

void AppStateTest::loginItemSpringsBack()
{
    Stage stage;
    stage.launch();
    stage.app->setLaunchAtLogin(true);
    QVERIFY(stage.app->launchAtLogin());
    stage.loginItem.failure = QStringLiteral("read-only file system");
    stage.app->setLaunchAtLogin(false);
    QVERIFY(stage.app->launchAtLogin());
}

void AppStateTest::displaySettingsApplyAtOnce()
{
    Stage stage;
    stage.launch();
    stage.app->settings().setShowWithoutNotch(false);
    QVERIFY(stage.panels.alive.empty());
    stage.app->settings().setShortcutEnabled(false);
    QVERIFY(stage.hotKeys.registered.empty());
}

REGISTER_TEST(AppStateTest);
#include "AppStateTest.moc"
