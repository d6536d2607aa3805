#include "App/AppStage.h"
#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "NotchKit/Tools/Timer/TimerModel.h"

static QString welcomed() { return u"kestrune.welcomed"_s; }

class AppStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void launchRequests_data()
    {
        columns<QString, bool, QString>();
        QTest::newRow("none") << "" << false << "home";
        QTest::newRow("a tool") << "--open timer" << true << "timer";
        QTest::newRow("no tool") << "--open" << true << "home";
        QTest::newRow("unknown tool") << "--open sundial" << true << "home";
    }

    void launchRequests()
    {
        const auto [arguments, opens, selected] = fetched<QString, bool, QString>();
        AppStage stage;
        stage.launch(arguments.split(u' ', Qt::SkipEmptyParts));
        stage.clock.advance(999ms);
        QVERIFY(!stage.model().expanded());
        stage.clock.advance(1ms);
        QCOMPARE(stage.model().expanded(), opens);
        QCOMPARE(rawValue(stage.model().selected()), selected);
        QVERIFY(!stage.panels.alive.at(0)->key);
    }

    void firstRunOpensHome()
    {
        AppStage stage(false);
        stage.launch({u"--open"_s, u"timer"_s});
        QVERIFY(*stage.defaults.value<bool>(welcomed()));
        stage.clock.advance(1s);
        QCOMPARE(stage.model().selected(), NotchTool::home);
        QVERIFY(stage.model().expanded());
    }

    void theTeleprompterIsRunFromAfar()
    {
        AppStage stage;
        stage.launch();
        PrompterRemote &remote = stage.app->prompter();
        auto &prompter = *stage.app->services().model<TeleprompterModel>();
        NotchSettings &settings = stage.app->settings();
        const auto does = [&](const QString &action, const QString &number = {}) {
            return !remote.carryOut(action, number);
        };
        QVERIFY2(!does(u"play"_s), "there is no script");
        settings.setPrompterText(u"Friends"_s);
        settings.setTools({NotchTool::note});
        QVERIFY2(!does(u"play"_s), "it is not among the tools");
        settings.setTools({NotchTool::note, NotchTool::teleprompter});
        QVERIFY(does(u"play"_s) && prompter.playing());
        QCOMPARE(stage.model().selected(), NotchTool::teleprompter);
        QVERIFY2(!stage.panels.alive.at(0)->key, "it took the keyboard");
        QVERIFY(does(u"toggle"_s) && !prompter.playing());

        prompter.setMaximumOffset(200);
        QVERIFY(does(u"position"_s, u"50"_s) && does(u"position"_s, u"-10"_s));
        QCOMPARE(prompter.offset(), 80.0);
        QVERIFY(does(u"speed"_s, u"40"_s) && does(u"speed"_s, u"+4"_s));
        QCOMPARE(settings.prompterSpeed(), 44.0);
        QVERIFY(!does(u"speed"_s, u"7"_s) && !does(u"play"_s, u"7"_s) && !does(u"dance"_s));
        QVERIFY(does(u"speed"_s, u"+900"_s));
        QCOMPARE(settings.prompterSpeed(), 140.0);

        QCOMPARE(stage.hotKeys.registered.size(), 1U);
        settings.setPrompterShortcutEnabled(true);
        QCOMPARE(stage.hotKeys.codes, std::pair(35U, 6400U));
        stage.hotKeys.handler(stage.hotKeys.registered.back());
        QTRY_VERIFY(prompter.playing());
        stage.setSuite(true, true);
        stage.clock.advance(3s);
        QVERIFY2(stage.hotKeys.registered.empty(), "a paused notch holds keys");
    }

    void suitePausesTheNotch_data() { noAndYes("asked", "told"); }
    void suitePausesTheNotch()
    {
        const auto [tells] = fetched<bool>();
        AppStage stage;
        stage.applications.tells = tells;
        stage.setSuite(true, true);
        stage.launch();
        stage.app->settings().setEnabled(NotchTool::nowPlaying, false); // Its players have to be asked.
        QVERIFY(!stage.app->controller().isRunning() && stage.app->yieldingToFennivar());
        stage.setSuite(true, false);
        stage.clock.advance(3s);
        QVERIFY(stage.app->controller().isRunning() && !stage.app->yieldingToFennivar());
        stage.app->controller().stop();
        stage.clock.advance(3s);
        QVERIFY2(stage.app->controller().isRunning(), "a notch stopped some other way is started again");
        stage.setSuite(true, true);
        stage.clock.advance(3s);
        QVERIFY(stage.panels.alive.empty());
        stage.setSuite(false, true);
        stage.clock.advance(3s);
        QCOMPARE(stage.panels.alive.size(), 1U);
        if (tells)
            QCOMPARE(stage.clock.running(), 0U);
    }

    void anEndedTimerIsToldWhereTheNotchIsNotSeen_data()
    {
        const auto row = columns<std::function<void(AppStage &)>, bool>();
        row(
            "in sight", [](AppStage &) {}, false);
        row(
            "full screen", [](AppStage &stage) { stage.fullScreenWindows.set({u"HDMI-1"_s}); }, true);
        row(
            "another display",
            [](AppStage &stage) {
                stage.pointer.now.location = {-5, 5};
            },
            true);
        row(
            "locked", [](AppStage &stage) { stage.lock.set(true); }, true);
        row(
            "no wings", [](AppStage &stage) { stage.app->settings().setLiveActivities(false); }, true);
    }

    void anEndedTimerIsToldWhereTheNotchIsNotSeen()
    {
        const auto [hide, isTold] = fetched<std::function<void(AppStage &)>, bool>();
        AppStage stage;
        stage.launch();
        hide(stage);
        TimerModel &timer = *stage.app->services().model<TimerModel>();
        const auto runDown = [&] {
            timer.start(60);
            stage.clock.advance(59s);
            QVERIFY(stage.notifications.shown.isEmpty());
            stage.clock.advance(1s);
        };
        runDown();
        const QStringList told{u"Timer"_s, u"The time is up."_s};
        QCOMPARE(stage.notifications.shown, isTold ? told : QStringList());
        stage.lock.set(false);
        stage.app->showNotch(NotchTool::timer);
        QVERIFY(stage.notifications.shown.isEmpty() && !timer.unseen());

        stage.app->controller().collapseAll();
        runDown();
        Q_EMIT stage.notifications.dismissed();
        QVERIFY(!timer.unseen() && !stage.app->services().hasActivity());
        runDown();
        Q_EMIT stage.notifications.activated();
        QVERIFY(stage.model().expanded() && stage.panels.alive.at(0)->key && !timer.unseen());
    }

    void pausedNotchExplainsItself()
    {
        AppStage stage;
        stage.setSuite(true, true);
        stage.launch();
        stage.app->showNotch(NotchTool::home);
        stage.app->toggle();
        const QStringList alert{u"Fennivar’s notch is on, so Kestrune is paused."_s,
                                u"Turn off Notch in Fennivar to use Kestrune."_s};
        QCOMPARE(stage.alerts, alert + alert);
    }
};

REGISTER_TEST(AppStateTest);
#include "AppStateTest.moc"
