#include "EndToEnd/Stage.h"

/// Real players with real songs, from the session bus to the wings and the pane, and back by its buttons.
class NowPlayingTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void followsAndControlsRealPlayers()
    {
        QVERIFY(makeSongs());
        QVERIFY(stage().run({{"hoverDelay", "60"}}) && stage().choose(u"nowPlaying"_s));
        QVERIFY(!session().hasActivity() && !stage().covered(wing));

        ChildProcess mpv(session().environment());
        QVERIFY(mpv.launch(u"mpv"_s,
                           {u"--no-config"_s, u"--no-terminal"_s, u"--ao=null"_s, u"--vo=null"_s,
                            u"--script=/usr/lib/mpv-mpris/mpris.so"_s, song(u"one"_s), song(u"two"_s)}));
        QVERIFY(waitUntil([&] { return session().hasActivity(); }));
        QTRY_VERIFY(stage().covered(wing));
        QVERIFY2(waitUntil([&] { return wingsMove(); }), "the song plays");
        QVERIFY(stage().openByHotKey());
        QTRY_COMPARE(stage().x.pixel(cover), QColor(Qt::red));
        const int played = progress();
        QTRY_VERIFY(progress() > played);

        input().click(middle);
        QTRY_COMPARE(ask(u"mpv"_s, u"status"_s), u"Paused"_s);
        const auto stands = [&] {
            const int paused = progress();
            return holdsFor([&] { return progress() == paused; }, 2500);
        };
        QVERIFY(waitUntil(stands)); // once the pane has looked again
        input().click(middle);
        QTRY_COMPARE(ask(u"mpv"_s, u"status"_s), u"Playing"_s);
        input().click(forward);
        QTRY_COMPARE(title(), u"two"_s);
        input().click(backward);
        QTRY_COMPARE(title(), u"one"_s);

        ChildProcess cmus(session().environment());
        QVERIFY(startCmus(cmus));
        ask(u"mpv"_s, u"pause"_s);
        QTRY_VERIFY(stage().x.pixel(cover) != QColor(Qt::red)); // this one's song has no cover
        input().click(middle);
        QTRY_COMPARE(ask(u"cmus"_s, u"status"_s), u"Paused"_s);
        QCOMPARE(ask(u"mpv"_s, u"status"_s), u"Paused"_s);
        ask(u"mpv"_s, u"play"_s);
        QTRY_COMPARE(stage().x.pixel(cover), QColor(Qt::red));
        ask(u"mpv"_s, u"pause"_s);
        QTest::qWait(2200);
        input().move(Place::away);
        QVERIFY(stage().close());
        QVERIFY2(waitUntil([&] { return !wingsMove() && stage().covered(wing); }), "it is paused");

        ask(u"mpv"_s, u"stop"_s);
        QVERIFY(holdsFor([&] { return session().hasActivity(); }, 2500)); // the other one is paused
        ask(u"cmus"_s, u"stop"_s);
        QVERIFY(waitUntil([&] { return !session().hasActivity(); }));
        QTRY_VERIFY(!stage().covered(wing));
    }

private:
    QString music() { return session().environment().value(u"HOME"_s) + u"/music"_s; }
    QString song(const QString &title) { return music() + u'/' + title + u".flac"_s; }

    QString execute(const QString &program, const QStringList &arguments)
    {
        ChildProcess process(session().environment());
        if (!process.launch(program, arguments) || !process.waitForFinished())
            return u"failed"_s;
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }
    QString ask(const QString &player, const QString &what)
    {
        return execute(u"playerctl"_s, {u"--player"_s, player, what});
    }
    QString title() { return execute(u"playerctl"_s, {u"--player=mpv"_s, u"metadata"_s, u"title"_s}); }

    /// Two songs with a red cover beside them, and one without in another folder.
    bool makeSongs()
    {
        const QByteArray red = encoded(plainImage({300, 300}, Qt::red));
        if (!QDir().mkpath(music() + u"/bare"_s) || !writeFile(music() + u"/cover.png"_s, red))
            return false;
        for (const QString &name : {u"one"_s, u"two"_s, u"bare/three"_s}) {
            const QString comment = u"TITLE="_s + name;
            execute(u"sox"_s, {u"-n"_s, u"-r"_s, u"8000"_s, u"--add-comment"_s, comment, u"--add-comment"_s,
                               u"ARTIST=Band"_s, song(name), u"synth"_s, u"90"_s, u"sine"_s, u"220"_s});
            if (!QFile::exists(song(name)))
                return false;
        }
        return true;
    }

    /// The player needs a terminal; it is told what to play over a socket of its own.
    bool startCmus(ChildProcess &cmus)
    {
        QProcessEnvironment environment = session().environment();
        if (!writeFile(environment.value(u"XDG_CONFIG_HOME"_s) + u"/cmus/rc"_s,
                       "set output_plugin=ao\nset dsp.ao.driver=null\nset mpris=true\n"))
            return false;
        environment.insert(u"TERM"_s, u"xterm"_s);
        cmus.setProcessEnvironment(environment);
        const QString socket = environment.value(u"XDG_RUNTIME_DIR"_s) + u"/cmus-socket"_s;
        if (!cmus.launch(u"script"_s, {u"-qfc"_s, u"cmus"_s, u"/dev/null"_s}) ||
            !waitUntil([&] { return QFile::exists(socket); }))
            return false;
        execute(u"cmus-remote"_s, {u"--file"_s, song(u"bare/three"_s)});
        return waitUntil([&] { return ask(u"cmus"_s, u"status"_s) == "Playing"_L1; });
    }

    bool wingsMove()
    {
        const QImage before = stage().x.grab(rightWing);
        return waitUntil([&] { return stage().x.grab(rightWing) != before; }, 800);
    }

    /// How many pixels of the bar are filled.
    int progress()
    {
        const QImage line = stage().x.grab(groove);
        int filled = 0;
        while (filled < line.width() && qGray(line.pixel(filled, 0)) > 150)
            ++filled;
        return filled;
    }

    static constexpr QPoint wing{640 - 160, 12};
    static constexpr QRect rightWing{640 + 95, 0, 76, 32};
    static constexpr QPoint cover{425, 160};
    static constexpr QRect groove{516, 157, 400, 1};
    static constexpr QPoint backward{522, 201};
    static constexpr QPoint middle{566, 201};
    static constexpr QPoint forward{610, 201};
};

REGISTER_TEST(NowPlayingTest);
#include "NowPlayingTest.moc"
