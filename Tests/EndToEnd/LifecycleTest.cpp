#include "EndToEnd/Stage.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QThread>

/// Starting, starting again, pausing for the companion suite, and what survives a crash.
class LifecycleTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setStage({}); } // before a test takes the time

    void theFirstRunOpensHome()
    {
        QElapsedTimer sinceStart;
        sinceStart.start();
        input().move(Place::away);
        QVERIFY(session().start());
        QVERIFY(waitUntil([&] { return !stage().looksClosed(); }));
        QVERIFY2(sinceStart.elapsed() >= 1000, qPrintable(QString::number(sinceStart.elapsed())));
        QVERIFY(session().isOpen());
        QCOMPARE(session().selected(), u"home"_s);
        QVERIFY(session().flag(u"kestrune"_s, u"kestrune.welcomed"_s));

        QCOMPARE(session().command({u"quit"_s}).status, 0);
        QTRY_VERIFY(!session().isRunning());
        QVERIFY(session().start());
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 2500));
    }

    /// Who sleeps and never wakes does not go to sleep again.
    void nothingWakesWhileClosed()
    {
        QVERIFY(stage().run() && stage().openByHotKey());
        for (const char *tool : {"clipboard", "nowPlaying", "system", "calendar", "home"})
            QCOMPARE(session().command({u"open"_s, QString::fromLatin1(tool)}).status, 0);
        QCOMPARE(session().command({u"close"_s}).status, 0);
        QVERIFY(stage().waitClosed());
        const auto sleeps = [&] {
            qint64 sum = 0;
            const QString tasks = u"/proc/%1/task"_s.arg(session().program().processId());
            for (const QString &task : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
                sum += processFigure("status", "voluntary_ctxt_switches:", task.toLongLong());
            return sum;
        };
        QTest::qWait(15'000); // What idles is given back by then.
        const qint64 before = sleeps();
        QTest::qWait(10'000);
        QVERIFY2(sleeps() <= before + 2, qPrintable(QString::number(sleeps() - before)));
    }

    void openArgument()
    {
        QVERIFY(stage().run({}, {u"--open"_s, u"timer"_s}));
        QTRY_VERIFY(session().isOpen());
        QCOMPARE(session().selected(), u"timer"_s);
    }

    void aSecondStartIsHandedOver_data()
    {
        columns<QStringList, QString>();
        QTest::newRow("plain") << QStringList{} << u"home"_s;
        QTest::newRow("opened as it was") << QStringList{u"--open"_s} << u"note"_s;
        QTest::newRow("with a tool") << QStringList{u"--open"_s, u"timer"_s} << u"timer"_s;
    }

    void aSecondStartIsHandedOver()
    {
        auto [arguments, tool] = fetched<QStringList, QString>();
        QVERIFY(stage().run() && stage().choose(u"note"_s));
        const Session::Result second = session().command(arguments);
        QCOMPARE(second.status, 0);
        QCOMPARE(second.errors, QString());
        QTRY_VERIFY(stage().looksOpen() && session().isOpen());
        QCOMPARE(session().selected(), tool);
        QVERIFY(session().isRunning());
        QCOMPARE(stage().x.topWindows({880, 390}).size(), qsizetype(1));
    }

    void restoredBesideOneThatRunsItChangesNothing()
    {
        QVERIFY(stage().run());
        const Session::Result second = session().command({u"-session"_s, u"10f1"_s});
        QCOMPARE(second.status, 0);
        QCOMPARE(second.errors, QString());
        QVERIFY(session().isRunning() && !session().isOpen() && stage().looksClosed());
    }

    void whoMeetsTheNameIsAnswered()
    {
        const QDBusConnection bus = session().bus();
        QDBusServiceWatcher watcher(Session::busName(), bus, QDBusServiceWatcher::WatchForRegistration);
        const auto ask = [&](const QString &method, const QVariantList &arguments) {
            QDBusMessage call = QDBusMessage::createMethodCall(
                Session::busName(), u"/example/kestrune/Kestrune"_s, u"example.kestrune.Control"_s, method);
            call.setArguments(arguments);
            return bus.asyncCall(call);
        };
        QList<QDBusPendingCall> early; // They may be carried out in another order while the program starts.
        QThread thread;                // This one waits for the start.
        connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &watcher, [&] {
            early = {ask(u"SetSetting"_s, {u"note"_s, u"early"_s}),
                     ask(u"GetSetting"_s, {u"hoverDelay"_s}),
                     ask(u"GetSetting"_s, {u"frobnicate"_s}),
                     ask(u"Status"_s, {}),
                     ask(u"SetSetting"_s, {u"note"_s, QString(2'000'000, u'x')}),
                     ask(u"GetSetting"_s, {QString(2'000'000, u'x')})};
            thread.quit();
        });
        watcher.moveToThread(&thread);
        connect(
            &thread, &QThread::finished, &watcher, [&] { watcher.moveToThread(thread.thread()); },
            Qt::DirectConnection);
        thread.start();
        const bool started = session().start();
        if (!started)
            thread.quit();
        QVERIFY(thread.wait() && started);
        QStringList errors;
        for (const QDBusPendingCall &call : std::as_const(early)) {
            QVERIFY(waitUntil([&] { return call.isFinished(); }));
            errors.append(call.error().name().section(u'.', -1));
        }
        QCOMPARE(errors,
                 (QStringList{u""_s, u""_s, u"InvalidArgs"_s, u""_s, u"InvalidArgs"_s, u"InvalidArgs"_s}));
        QCOMPARE(early[1].reply().arguments(), QVariantList{u"0.12"_s});
        QVERIFY(early[3].reply().arguments().value(0).toString().contains(u"displays"_s));
        QCOMPARE(session().setting(u"note"_s), u"early"_s);
    }

    void tellsWhatItDoesWhenAsked()
    {
        QVERIFY(stage().run());
        session().environment().insert(u"QT_LOGGING_RULES"_s, u"kestrune.*=true"_s);
        const Session::Result second = session().command({});
        QVERIFY2(second.errors.contains(u"kestrune.app: one is running already"_s),
                 qPrintable(second.errors));
    }

    void pausesWhileTheSuiteShowsItsNotch_data() { noAndYes("its notch is turned off", "it quits"); }

    void pausesWhileTheSuiteShowsItsNotch()
    {
        const auto [endsByQuitting] = fetched<bool>();
        constexpr int promised = 3000;
        QVERIFY(stage().run() && stage().openByHotKey());
        // Running with its notch off, the suite is no reason to pause.
        QVERIFY(session().bus().registerService(m_suite));
        QVERIFY(holdsFor([&] { return !notchIsGone(); }, promised + 500));

        session().setFlag(m_suite, m_suiteFlag, true);
        QVERIFY(waitUntil([&] { return notchIsGone(); }));
        QVERIFY(session().status().value("yielding"_L1).toBool());
        input().hotKey();
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return notchIsGone(); }, 500));
        input().move(Place::away);

        if (endsByQuitting)
            QVERIFY(session().bus().unregisterService(m_suite));
        else
            session().setFlag(m_suite, m_suiteFlag, false);
        QVERIFY(waitUntil([&] { return !notchIsGone(); }));
        QVERIFY(!session().status().value("yielding"_L1).toBool() && stage().openByHotKey());
    }

    void aSecondStartWhilePausedTellsWhy()
    {
        QVERIFY(session().bus().registerService(m_suite));
        session().setFlag(m_suite, m_suiteFlag, true);
        session().setFlag(u"kestrune"_s, u"kestrune.welcomed"_s, true);
        input().move(Place::away);
        QVERIFY(session().start());
        QVERIFY(holdsFor([&] { return notchIsGone(); }, 500));
        const QList<quint32> before = stage().x.clientWindows();

        QCOMPARE(session().command({}).status, 0);
        QTRY_COMPARE(stage().x.clientWindows().size(), before.size() + 1);
        QTRY_VERIFY(!stage().beneath.hasFocus());
        QVERIFY(notchIsGone());
        QTest::qWait(300); // the alert takes the keyboard as soon as it is drawn
        input().tap(XK_Return);
        QTRY_COMPARE(stage().x.clientWindows(), before);
        QVERIFY(session().status().value("yielding"_L1).toBool());
    }

    void theNoteSurvivesAKill()
    {
        QVERIFY(stage().run() && stage().choose(u"note"_s));
        QString expected;
        for (const char *word : {"One ", "two ", "three."}) {
            QVERIFY(stage().openByHover());
            input().click(Place::panel);
            QTRY_VERIFY(!stage().beneath.hasFocus());
            input().tap(XK_End);
            input().type(word);
            expected += QString::fromLatin1(word);
            QTRY_COMPARE(session().setting(u"note"_s), expected);
            session().program().killNow();

            QCOMPARE(session().setting(u"note"_s), expected);
            input().move(Place::away);
            QVERIFY(stage().run() && stage().choose(u"note"_s));
            QCOMPARE(session().setting(u"note"_s), expected);
        }
    }

    /// What stands in files: nothing runs it while the notch is closed, and all of it must be right
    /// afterwards.
    void codeLeavesTheMemoryWhileItIsClosed()
    {
        QVERIFY(stage().run() && stage().openByHover());
        const auto held = [this] {
            return processFigure("status", "RssFile:", session().program().processId());
        };
        const qint64 open = held();
        input().move(Place::away);
        QVERIFY(waitUntil([&] { return held() < open / 2; }));
        for (const QString &tool : session().tools())
            QVERIFY2(stage().choose(tool), qPrintable(tool));
        QVERIFY(stage().openByHover());
    }

    void quitEndsTheProgram()
    {
        QVERIFY(stage().run());
        const auto windows = stage().x.topWindows({880, 390}).size();
        QCOMPARE(windows, 1);
        QCOMPARE(session().command({u"quit"_s}).status, 0);
        QTRY_VERIFY(!session().isRunning());
        QCOMPARE(session().program().exitStatus(), QProcess::NormalExit);
        QCOMPARE(session().program().exitCode(), 0);
        QVERIFY(notchIsGone());
        QVERIFY(!session().bus().interface()->isServiceRegistered(Session::busName()));
    }

private:
    bool notchIsGone() { return !stage().covered(Place::notch); }

    const QString m_suite = u"example.fennivar.Fennivar"_s;
    const QString m_suiteFlag = u"notch.enabled"_s;
};

REGISTER_TEST(LifecycleTest);
#include "LifecycleTest.moc"
