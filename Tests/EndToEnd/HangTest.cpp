#include "Desktop/BusStandIn.h"
#include "EndToEnd/Stage.h"

#include <csignal>

#include <sys/inotify.h>
#include <unistd.h>

/// Whether files are read, as the kernel tells it.
struct ReadWatch
{
    explicit ReadWatch(const QString &file)
        : m_descriptor(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
    {
        ::inotify_add_watch(m_descriptor, QFile::encodeName(file).constData(), IN_ACCESS);
    }
    ~ReadWatch() { ::close(m_descriptor); }
    Q_DISABLE_COPY_MOVE(ReadWatch)

    bool take() const
    {
        char events[4096];
        return ::read(m_descriptor, events, sizeof events) > 0;
    }

private:
    int m_descriptor;
};

/// Beside what never answers: a disk whose server has gone, under everything that can lie on one, and a first
/// start that stands still.
class HangTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDeadDiskHoldsNothingElseUp()
    {
        const QDir home(session().environment().value(u"HOME"_s));
        const QString disk = home.filePath(u"disk"_s);
        QVERIFY(makeFiles(home));
        session().setLauncher({QStringLiteral(KESTRUNE_HANGING_DISK), disk});
        SqliteUserDefaults(session().environment().value(u"XDG_CONFIG_HOME"_s) +
                           u"/com.apple.screencapture/defaults.sqlite"_s)
            .setObject(u"location"_s, disk + u"/Screenshots"_s);
        ServiceStandIn player(session().environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s),
                              u"org.mpris.MediaPlayer2.player"_s);
        QVERIFY(player.appear([&](const QDBusMessage &call) { return playing(call, disk); }));
        const QByteArray shelf =
            QJsonDocument(QJsonArray{disk + u"/film.mkv"_s}).toJson(QJsonDocument::Compact);
        QVERIFY(stage().run({{"shelfPaths", shelf.constData()}, {"readClaudeUsage", "true"}}));
        // The player is known, and asked for its cover. It answers only while this waits for events.
        const auto isKnown = [&] {
            QTest::qWait(3000);
            return session().hasActivity();
        };
        QVERIFY(waitUntil(isKnown, 30000));

        session().copy(u"text/uri-list"_s, "file://" + QFile::encodeName(disk) + "/copied.png\r\n");
        QVERIFY(waitUntil([&] { return session().copiedTexts() == QStringList{u"copied.png"_s}; }, 20000));
        for (const char *text : {"one", "two"}) {
            session().copy(u"UTF8_STRING"_s, text);
            QVERIFY2(waitUntil([&] { return session().copiedTexts().first() == QLatin1String(text); }, 20000),
                     text);
        }

        const ReadWatch log(home.filePath(u".claude/projects/a/log.jsonl"_s));
        for (const QString &tool :
             {u"shelf"_s, u"captures"_s, u"nowPlaying"_s, u"clipboard"_s, u"aiUsage"_s}) {
            QCOMPARE(session().command({u"open"_s, tool}).status, 0);
            QVERIFY2(waitUntil([&] { return stage().looksOpen(); }), qPrintable(tool));
            QVERIFY(waitUntil([&] { return session().selected() == tool; }));
        }
        QVERIFY(waitUntil([&] { return log.take(); }, 20000));
        QVERIFY(stage().close() && stage().openByHover());

        QVERIFY(endsInTime([&] { return session().command({u"quit"_s}).status == 0; }));
        QVERIFY(stage().run());
        QCOMPARE(session().copiedTexts(), QStringList({u"two"_s, u"one"_s, u"copied.png"_s}));
        QVERIFY(stage().openByHotKey());
    }

    void aFirstStartThatStandsStillIsNamed()
    {
        QVERIFY(stage().run());
        const auto program = static_cast<pid_t>(session().program().processId());
        QCOMPARE(::kill(program, SIGSTOP), 0);
        const QList<std::pair<QStringList, QString>> commands{
            {{}, u"Kestrune: it is running already, but does not answer\n"_s},
            {{u"--open"_s, u"timer"_s}, u"Kestrune: it is running already, but does not answer\n"_s},
            {{u"status"_s}, u"Kestrune: it is running, but does not answer\n"_s},
            {{u"open"_s, u"timer"_s}, u"Kestrune: it is running, but does not answer\n"_s},
            {{u"settings"_s, u"list"_s}, u"Kestrune: it is running, but does not answer\n"_s}};
        for (const auto &[arguments, message] : commands) {
            const Session::Result result = session().command(arguments);
            QCOMPARE(result.errors, message);
            QCOMPARE(result.status, 1);
        }
        QCOMPARE(::kill(program, SIGCONT), 0);
        QVERIFY(waitUntil([&] { return session().status().value("running"_L1).toBool(); }));
        QVERIFY(endsInTime([&] { return session().command({u"quit"_s}).status == 0; }));
    }

private:
    static bool makeFiles(const QDir &home)
    {
        const QByteArray picture = encoded(plainImage({40, 40}));
        return home.mkpath(u"disk/Screenshots"_s) &&
               writeFile(home.filePath(u"disk/copied.png"_s), picture) &&
               writeFile(home.filePath(u"disk/cover.png"_s), picture) &&
               writeFile(home.filePath(u"disk/film.mkv"_s)) &&
               writeFile(home.filePath(u".claude/projects/a/log.jsonl"_s), "{}\n");
    }

    static std::optional<QDBusMessage> playing(const QDBusMessage &call, const QString &disk)
    {
        const QVariantMap song{{u"xesam:title"_s, u"Song"_s},
                               {u"xesam:artist"_s, QStringList{u"Band"_s}},
                               {u"mpris:artUrl"_s, u"file://"_s + disk + u"/cover.png"_s}};
        return call.createReply(QVariantMap{{u"PlaybackStatus"_s, u"Playing"_s}, {u"Metadata"_s, song}});
    }

    /// Quits, and says whether the process was gone in two seconds; on a machine that does other things, in
    /// as many times more as a command takes longer than it should.
    bool endsInTime(const std::function<bool()> &quit)
    {
        constexpr qint64 kPromised = 2000;
        constexpr qint64 kQuickCommand = 100;
        QElapsedTimer timer;
        timer.start();
        session().command({u"--version"_s});
        const qint64 slowness = 1 + timer.restart() / kQuickCommand;
        if (!quit() || !waitUntil([&] { return !session().isRunning(); }, kPromised * slowness))
            return false;
        qInfo("ended after %lld ms, on a machine %lld times too slow", timer.elapsed(), slowness - 1);
        return timer.elapsed() <= kPromised * slowness;
    }
};

REGISTER_TEST(HangTest);
#include "HangTest.moc"
