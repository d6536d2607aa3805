#include "App/AppStage.h"
#include "Support/TestRegistry.h"

#include <QTest>

using namespace Kestrune;

namespace {

QString welcomed() { return QStringLiteral("kestrune.welcomed"); }

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
    AppStage stage;
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
    AppStage stage(false);
    stage.launch({QStringLiteral("--open"), QStringLiteral("timer")});
    QVERIFY(*stage.defaults.value<bool>(welcomed()));
    stage.clock.advance(std::chrono::seconds(1));
    QCOMPARE(stage.model().selected(), NotchTool::home);
    QVERIFY(stage.model().expanded());
}

void AppStateTest::suitePausesTheNotch()
{
    AppStage stage;
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
    AppStage stage;
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
    AppStage stage;
    stage.launch();
    stage.app->setLaunchAtLogin(true);
    QVERIFY(stage.app->launchAtLogin());
    stage.loginItem.failure = QStringLiteral("read-only file system");
    stage.app->setLaunchAtLogin(false);
    QVERIFY(stage.app->launchAtLogin());
}

void AppStateTest::displaySettingsApplyAtOnce()
{
    AppStage stage;
    stage.launch();
    stage.app->settings().setShowWithoutNotch(false);
    QVERIFY(stage.panels.alive.empty());
    stage.app->settings().setShortcutEnabled(false);
    QVERIFY(stage.hotKeys.registered.empty());
}

REGISTER_TEST(AppStateTest);
#include "AppStateTest.moc"
