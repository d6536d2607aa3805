#include "EndToEnd/Stage.h"

/// The countdown from its pane through the closed notch's wings to its sound.
class TimerTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void runsDownInTheWingsAndSoundsOnce()
    {
        ChildProcess server(session().environment());
        ChildProcess watcher(session().environment());
        QVERIFY(startSound(server, watcher));
        QByteArray events;
        const auto sounds = [&] {
            events += watcher.readAllStandardOutput();
            return events.count("'new' on sink-input");
        };
        hasten();

        // Hover must not open the notch while its wings are being clicked.
        QVERIFY(stage().run({{"hoverDelay", "60"}}) && stage().choose(u"timer"_s));
        QVERIFY(!stage().covered(wings.topLeft() + QPoint(12, 12)) && stage().openByHotKey());
        input().click(Place::firstPreset);
        QTRY_VERIFY(session().hasActivity());
        input().move(Place::away);
        QTRY_VERIFY(stage().looksClosed());

        QTRY_VERIFY(stage().covered(wings.topLeft() + QPoint(12, 12)));
        QVERIFY(stage().covered(wings.topRight() + QPoint(-12, 12)));
        QVERIFY(stage().clickIsKept(wings.topLeft() + QPoint(2, 12)));
        QVERIFY(stage().clickReachesBeneath(wings.topLeft() + QPoint(-8, 12)));
        input().move(Place::away);
        QSet<QByteArray> faces;
        const auto look = [&] {
            const QImage now = stage().x.grab(wings);
            faces.insert(QByteArray(reinterpret_cast<const char *>(now.constBits()), now.sizeInBytes()));
            return faces.size() >= 3;
        };
        QVERIFY(waitUntil(look));
        QCOMPARE(sounds(), 0);

        QVERIFY(waitUntil([&] { return sounds() > 0; }));
        // The wings say so until the user has looked.
        const auto inWings = [&] { return stage().covered(wings.topLeft() + QPoint(12, 12)); };
        QVERIFY(holdsFor([&] { return inWings() && session().hasActivity(); }, 3000));
        QVERIFY(stage().openByHotKey());
        input().hotKey();
        QVERIFY(stage().waitClosed());
        QTRY_VERIFY(!inWings());
        QVERIFY(!session().hasActivity());
        QCOMPARE(sounds(), 1);
    }

    /// Where a film hides the notch, the desktop's notifications say it, until the user has looked.
    void isToldOverAFilm()
    {
        ChildProcess notifier(session().environment());
        QVERIFY(notifier.launch(u"dunst"_s, {u"-conf"_s, u"/dev/null"_s}));
        const auto told = [&] {
            ChildProcess asked(session().environment());
            return asked.launch(u"dunstctl"_s, {u"count"_s, u"displayed"_s}) && asked.waitForFinished()
                       ? asked.readAllStandardOutput().trimmed()
                       : QByteArray();
        };
        QTRY_COMPARE(told(), "0");
        hasten();
        QVERIFY(stage().run({{"hoverDelay", "60"}}) && stage().choose(u"timer"_s) && stage().openByHotKey());
        input().click(Place::firstPreset);
        QTRY_VERIFY(session().hasActivity());
        input().hotKey();
        QVERIFY(stage().waitClosed());
        std::optional<TestWindow> film(std::in_place, stage().display.name(), TestWindow::Kind::FullScreen,
                                       QRect(0, 0, 1280, 800), 0xff602080);
        QVERIFY(waitUntil([&] { return told() == "1"; }));
        film.reset();
        QVERIFY(stage().openByHotKey());
        QTRY_COMPARE(told(), "0");
    }

private:
    /// A minute of the wall clock passes every second: five minutes are the shortest preset.
    void hasten()
    {
        session().environment().insert(u"LD_PRELOAD"_s, u"/usr/$LIB/faketime/libfaketimeMT.so.1"_s);
        session().environment().insert(u"FAKETIME"_s, u"+0 x60"_s);
        session().environment().insert(u"FAKETIME_DONT_FAKE_MONOTONIC"_s, u"1"_s);
    }

    /// A sound server whose only output is silence, and a watcher of what is played on it.
    bool startSound(ChildProcess &server, ChildProcess &watcher)
    {
        const QString socket = session().environment().value(u"XDG_RUNTIME_DIR"_s) + u"/sound"_s;
        if (!server.launch(u"pulseaudio"_s,
                           {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--log-target=stderr"_s,
                            u"-L"_s, u"module-native-protocol-unix socket=%1 auth-anonymous=1"_s.arg(socket),
                            u"-L"_s, u"module-null-sink"_s}) ||
            !waitUntil([&] { return QFile::exists(socket); }))
            return false;
        session().environment().insert(u"PULSE_SERVER"_s, u"unix:"_s + socket);
        watcher.setProcessEnvironment(session().environment());
        // Each event in a line of its own at once, although nobody reads them on a terminal.
        return watcher.launch(u"stdbuf"_s, {u"--output=L"_s, u"pactl"_s, u"subscribe"_s});
    }

    static constexpr QRect wings{640 - 171, 0, 342, 32};
};

REGISTER_TEST(TimerTest);
#include "TimerTest.moc"
