#include "Desktop/BusStandIn.h"
#include "Desktop/Media/CoverSource.h"
#include "Desktop/Media/MprisApplications.h"
#include "Desktop/Media/MprisExecutor.h"
#include "NotchKit/Platform/PlayerScripts.h"

#include <QDBusObjectPath>

#include <deque>

#include <sys/stat.h>

namespace {

constexpr auto kMusic = MediaPlayer::music;
constexpr auto kSpotify = MediaPlayer::spotify;
using Command = PlayerCommand;

/// A player that says what the test wants it to.
struct Player : ServiceStandIn
{
    Player(const QString &bus, const QString &name)
        : ServiceStandIn(bus, u"org.mpris.MediaPlayer2."_s + name)
    {
        song = {{u"xesam:title"_s, name + u" song"_s}};
        appear([this](const QDBusMessage &call) -> std::optional<QDBusMessage> {
            if (hangs)
                return std::nullopt;
            if (refuses)
                return call.createErrorReply(QDBusError::AccessDenied, u"no"_s);
            if (call.member() != "GetAll"_L1)
                return call.createReply();
            return call.createReply(QVariantMap{{u"PlaybackStatus"_s, state},
                                                {u"Metadata"_s, song},
                                                {u"Position"_s, position},
                                                {u"CanSeek"_s, seeks}});
        });
    }

    QVariant state = u"Playing"_s;
    QVariant position = 2'500'000LL;
    QVariantMap song;
    bool seeks = false;
    bool hangs = false;
    bool refuses = false;
};

/// A bus with players and the executor, which runs on another thread as it does in the program.
struct Stage : StandInBus
{
    QStringList ignored;
    MprisExecutor executor{bus.address(), [this] { return ignored; }};
    std::deque<Player> players;
    qint64 milliseconds = 0; ///< Of the last script.

    Player &add(const QString &name) { return players.emplace_back(bus.address(), name); }

    ScriptOutcome execute(const QString &source)
    {
        QElapsedTimer timer;
        timer.start();
        const auto future = executor.execute(source);
        if (!waitUntil([&] { return future.isFinished(); }))
            qFatal("the script does not end");
        milliseconds = timer.elapsed();
        return future.result();
    }
    /// "playing|title|artist|duration|position", or how else it ended.
    QString status(MediaPlayer player) { return word(execute(PlayerScripts::status(player))); }
    QString title(MediaPlayer player) { return status(player).section(u'|', 1, 1); }

    static QString word(const ScriptOutcome &outcome)
    {
        if (const auto *text = std::get_if<QString>(&outcome))
            return QString(*text).replace(u'\n', u'|');
        return std::holds_alternative<ScriptNotPermitted>(outcome) ? u"refused"_s : u"failed"_s;
    }
};

} // namespace

/// The executor and the list of running players against stand-ins of players.
class MprisTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void status_data()
    {
        const auto row = columns<QVariantMap, QVariant, QVariant, QString>();
        const QVariant on = u"Playing"_s;
        const QVariant at = 2'500'000LL;
        const QVariantMap full{{u"xesam:title"_s, u"Sång"_s},
                               {u"xesam:artist"_s, QStringList{u"One"_s, u"Two"_s}},
                               {u"mpris:length"_s, 215'500'000LL}};
        const auto with = [&](const QString &key, const QVariant &value) {
            QVariantMap song = full;
            song.insert(key, value);
            return song;
        };
        row("playing", full, on, at, u"playing|Sång|One, Two|215.500|2.500"_s);
        row("paused", full, QVariant(u"Paused"_s), at, u"paused|Sång|One, Two|215.500|2.500"_s);
        row("stopped", full, QVariant(u"Stopped"_s), at, u""_s);
        row("no state", full, QVariant(7), at, u""_s);
        row("lines", with(u"xesam:title"_s, u" a\nb\r\n c"_s), on, at,
            u"playing|a b c|One, Two|215.500|2.500"_s);
        row("other types",
            QVariantMap{{u"xesam:title"_s, u"T"_s},
                        {u"xesam:artist"_s, u"One"_s},
                        {u"mpris:length"_s, quint64{1'000'000}}},
            on, QVariant(1'500'000.0), u"playing|T|One|1.000|1.500"_s);
        row("nonsense",
            QVariantMap{{u"xesam:title"_s, QStringList{u"T"_s, u"U"_s}},
                        {u"xesam:artist"_s, QVariantMap{{u"a"_s, 1}}},
                        {u"mpris:length"_s, -9LL}},
            on, QVariant(u"x"_s), u"playing|vlc||0.000|0.000"_s);
        row("file", QVariantMap{{u"xesam:url"_s, u"file:///music/My%20song.mp3"_s}}, on, at,
            u"playing|My song.mp3||0.000|2.500"_s);
        row("nothing known", QVariantMap(), on, at, u"playing|vlc||0.000|2.500"_s);
        row("many", with(u"xesam:artist"_s, QStringList(1000, u"Al"_s)), on, at,
            u"playing|Sång|%1|215.500|2.500"_s.arg(QStringList(20, u"Al"_s).join(u", "_s)));
        row("endless address", QVariantMap{{u"xesam:url"_s, u"file:///"_s + QString(50'000, u'x')}}, on, at,
            u"playing|vlc||0.000|2.500"_s);
        row("long", QVariantMap{{u"xesam:title"_s, QString(50'000, u'x')}}, on, at,
            u"playing|%1||0.000|2.500"_s.arg(QString(1000, u'x')));
    }

    void status()
    {
        const auto [song, state, position, status] = fetched<QVariantMap, QVariant, QVariant, QString>();
        Stage stage;
        Player &player = stage.add(u"vlc.instance77"_s);
        player.song = song;
        player.state = state;
        player.position = position;
        QCOMPARE(stage.status(kMusic), status);
        QCOMPARE(stage.status(kSpotify), u"failed"_s);
        QCOMPARE(player.called().constFirst(),
                 u"/org/mpris/MediaPlayer2 org.freedesktop.DBus.Properties.GetAll"_s);
    }

    void theBestPlayerCounts()
    {
        Stage stage;
        Player &mpv = stage.add(u"mpv"_s);
        Player &vlc = stage.add(u"vlc"_s);
        Player &spotify = stage.add(u"spotify"_s);
        stage.add(u"playerctld"_s).song = {{u"xesam:title"_s, u"an echo"_s}};
        spotify.song.insert(u"mpris:length"_s, 1'500'000LL);
        const auto titleOnce = [&](Player &player, const QString &state) {
            player.state = state;
            return stage.title(kMusic);
        };
        QCOMPARE(titleOnce(mpv, u"Paused"_s), u"vlc song"_s);
        QCOMPARE(titleOnce(mpv, u"Playing"_s), u"mpv song"_s); // the last one that began
        vlc.song.insert(u"xesam:title"_s, u"another"_s);
        QCOMPARE(stage.title(kMusic), u"another"_s);
        QCOMPARE(titleOnce(vlc, u"Paused"_s), u"mpv song"_s);
        QCOMPARE(titleOnce(mpv, u"Paused"_s), u"mpv song"_s); // the last one that was paused
        QCOMPARE(titleOnce(mpv, u"Stopped"_s), u"another"_s);
        vlc.state = u"Stopped"_s;
        QCOMPARE(stage.status(kMusic), u""_s);
        QCOMPARE(stage.status(kSpotify), u"playing|spotify song||1500|2.500"_s);
    }

    void aBrowserAndItsExtensionAreOne()
    {
        Stage stage;
        Player &browser = stage.add(u"firefox.instance_1_2"_s);
        Player &extension = stage.add(u"plasma-browser-integration"_s);
        browser.song = {{u"xesam:title"_s, u"page"_s}};
        extension.song = {{u"xesam:title"_s, u"page"_s}, {u"xesam:artist"_s, u"Band"_s}};
        QCOMPARE(stage.status(kMusic), u"playing|page|Band|0.000|2.500"_s);
        extension.state = u"Paused"_s;
        QCOMPARE(stage.status(kMusic), u"paused|page|Band|0.000|2.500"_s);
        browser.song.insert(u"xesam:title"_s, u"another tab"_s);
        QCOMPARE(stage.title(kMusic), u"another tab"_s);
        stage.ignored = {u"FireFox"_s, u" "_s};
        QCOMPARE(stage.title(kMusic), u"page"_s);
        stage.ignored.append(u"plasma"_s);
        QCOMPARE(stage.status(kMusic), u"failed"_s);
    }

    void seeksInTheSongThatShows()
    {
        Stage stage;
        Player &vlc = stage.add(u"vlc"_s);
        vlc.song.insert(u"mpris:length"_s, 9'000'000LL);
        vlc.song.insert(u"mpris:trackid"_s, QVariant::fromValue(QDBusObjectPath(u"/song/7"_s)));
        QCOMPARE(stage.status(kMusic), u"playing|vlc song||9.000|2.500"_s);
        vlc.seeks = true;
        QCOMPARE(stage.status(kMusic), u"playing|vlc song||9.000|2.500|seekable"_s);
        stage.execute(PlayerScripts::seek(kMusic, 4.5));
        const QDBusMessage call = vlc.calls.constLast();
        QCOMPARE(call.member(), u"SetPosition"_s);
        QCOMPARE(call.signature(), u"ox"_s);
        QCOMPARE(call.arguments().value(0).value<QDBusObjectPath>().path(), u"/song/7"_s);
        QCOMPARE(call.arguments().value(1).toLongLong(), 4'500'000LL);
        QSet<QString> known{stage.status(kMusic)};
        for (const QString &cover : {u"file:///one"_s, u"file:///two"_s}) { // for the same song
            vlc.song.insert(u"mpris:artUrl"_s, cover);
            known.insert(stage.status(kMusic));
        }
        QCOMPARE(known.size(), 3);
    }

    void aHangingPlayerHoldsNobodyUp()
    {
        Stage stage;
        Player &spotify = stage.add(u"spotify"_s);
        Player &mpv = stage.add(u"mpv"_s);
        stage.add(u"vlc"_s);
        spotify.hangs = mpv.hangs = true;
        QCOMPARE(stage.title(kMusic), u"vlc song"_s);
        QCOMPARE(stage.status(kSpotify), u"failed"_s);
        // The slowest machine has one round in which nothing but a wait takes long.
        qint64 fastest = stage.milliseconds;
        QVERIFY(fastest >= 400);
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(stage.title(kMusic), u"vlc song"_s);
            const qint64 music = stage.milliseconds;
            QCOMPARE(stage.status(kSpotify), u"failed"_s);
            fastest = std::min(fastest, std::max(music, stage.milliseconds));
        }
        QVERIFY2(fastest < 400, "it is waited for again");
        QCOMPARE(mpv.calls.size() + spotify.calls.size(), 2); // none piles up at a player that hangs

        mpv.hangs = false; // it comes to itself
        QDBusConnection::connectToBus(stage.bus.address(),
                                      stage.bus.address() + u"org.mpris.MediaPlayer2.mpv"_s)
            .send(mpv.calls.constFirst().createReply(QVariantMap()));
        QTRY_COMPARE(stage.title(kMusic), u"mpv song"_s);
    }

    void refusals()
    {
        Stage stage;
        Player &spotify = stage.add(u"spotify"_s);
        Player &mpv = stage.add(u"mpv"_s);
        spotify.refuses = mpv.refuses = true;
        QCOMPARE(stage.status(kSpotify), u"refused"_s);
        QCOMPARE(stage.status(kMusic), u"refused"_s);
        Player &vlc = stage.add(u"vlc"_s);
        QCOMPARE(stage.title(kMusic), u"vlc song"_s);
        vlc.state = u"Stopped"_s;
        QCOMPARE(stage.status(kMusic), u""_s);
    }

    void commandsAndCoversAreForTheOneThatShows()
    {
        Stage stage;
        Player &mpv = stage.add(u"mpv"_s);
        Player &vlc = stage.add(u"vlc"_s);
        Player &spotify = stage.add(u"spotify"_s);
        const QString art = u"mpris:artUrl"_s;
        mpv.song.insert(art, u"data:,mpv"_s);
        vlc.song.insert(art, u"data:,vlc"_s);
        spotify.song.insert(art, u"https://host/spotify"_s);
        const auto methods = [](const Player &player) {
            QStringList names;
            for (const QDBusMessage &call : player.calls) {
                if (call.interface() == "org.mpris.MediaPlayer2.Player"_L1)
                    names.append(call.member());
            }
            return names.join(u' ');
        };
        for (const Command command : {Command::playPause, Command::next, Command::previous})
            stage.execute(PlayerScripts::command(command, kMusic));
        QVERIFY2(methods(mpv).isEmpty() && methods(vlc).isEmpty(), "none has shown yet");

        mpv.state = u"Paused"_s;
        stage.status(kMusic);
        stage.status(kSpotify);
        mpv.state = u"Playing"_s; // not looked at since
        for (const Command command : {Command::playPause, Command::next, Command::previous})
            stage.execute(PlayerScripts::command(command, kMusic));
        QCOMPARE(methods(vlc), u"PlayPause Next Previous"_s);
        QVERIFY(methods(mpv).isEmpty() && methods(spotify).isEmpty());
        stage.execute(PlayerScripts::command(Command::next, kSpotify));
        QCOMPARE(methods(spotify), u"Next"_s);
        QVERIFY(stage.execute(PlayerScripts::artwork(kMusic)) == ScriptOutcome(QByteArray("vlc")));
        QVERIFY(stage.execute(PlayerScripts::artwork(kSpotify)) == ScriptOutcome(u"https://host/spotify"_s));
    }

    void covers_data()
    {
        columns<QString, ScriptOutcome>();
        const ScriptOutcome failed = ScriptFailed();
        const ScriptOutcome hello = QByteArray("hello");
        QTest::newRow("file") << u"file://FOLDER/a%20cover%20%C3%BC.png"_s << hello;
        QTest::newRow("missing") << u"file://FOLDER/none.png"_s << failed;
        QTest::newRow("folder") << u"file://FOLDER"_s << failed;
        QTest::newRow("pipe") << u"file://FOLDER/pipe"_s << failed;
        QTest::newRow("large") << u"file://FOLDER/large"_s << failed;
        QTest::newRow("endless") << u"file:///dev/zero"_s << failed;
        QTest::newRow("path") << u"FOLDER/a cover ü.png"_s << failed;
        QTest::newRow("base64") << u"data:image/png;base64,aGVsbG8="_s << hello;
        QTest::newRow("percent") << u"DATA:image/png,%68ello"_s << hello;
        QTest::newRow("no data") << u"data:image/png;base64"_s << failed;
        QTest::newRow("too much data") << u"data:;base64,"_s + QString(12 * 1024 * 1024, u'A') << failed;
        QTest::newRow("network") << u"https://host/a?b=c#d"_s << ScriptOutcome(u"https://host/a?b=c#d"_s);
        QTest::newRow("endless address") << u"https://host/"_s + QString(50'000, u'x') << failed;
        QTest::newRow("unsafe") << u"http://host/a"_s << failed;
        QTest::newRow("none") << u""_s << failed;
    }

    void covers()
    {
        auto [address, outcome] = fetched<QString, ScriptOutcome>();
        const QTemporaryDir folder;
        QVERIFY(writeFile(folder.filePath(u"a cover ü.png"_s), "hello"));
        QFile large(folder.filePath(u"large"_s));
        QVERIFY(large.open(QFile::WriteOnly) && large.resize(kMostCoverBytes + 1));
        QCOMPARE(mkfifo(QFile::encodeName(folder.filePath(u"pipe"_s)).constData(), 0600), 0);
        QVERIFY(CoverSource::read(address.replace("FOLDER"_L1, folder.path())) == outcome);
    }

    void knownScriptsOnly()
    {
        Stage stage;
        const Player &mpv = stage.add(u"mpv"_s);
        const QString script = PlayerScripts::status(kMusic);
        for (const QString &source :
             {QString(), script + u' ', script.toUpper(), u"tell application \"Music\" to quit"_s,
              u"tell application \"Finder\" to playpause"_s, u"do shell script \"true\""_s})
            QCOMPARE(Stage::word(stage.execute(source)), u"failed"_s);
        QVERIFY(mpv.calls.isEmpty());
        MprisExecutor nowhere(u"unix:path=/nowhere"_s);
        QCOMPARE(Stage::word(nowhere.execute(script).result()), u"failed"_s);
    }

    void runningPlayers()
    {
        Stage stage;
        stage.add(u"mpv"_s);
        stage.add(u"playerctld"_s);
        MprisApplications applications(stage.bus.connection());
        int told = 0;
        QVERIFY(applications.follow([&] { ++told; }));
        const auto runs = [&](MediaPlayer player) {
            return applications.isRunning(bundleIdentifier(player));
        };
        QTRY_VERIFY(runs(kMusic));
        QVERIFY(!runs(kSpotify));
        stage.add(u"spotify"_s);
        QTRY_VERIFY(runs(kSpotify));
        told = 0;
        const QString player = u"org.mpris.MediaPlayer2.Player"_s;
        const auto say = [&](const QString &interface, const QString &member, const QVariantList &what) {
            stage.players.front().signal(u"/org/mpris/MediaPlayer2"_s, interface, member, what);
        };
        for (const QString &changed : {u"org.mpris.MediaPlayer2.TrackList"_s, player})
            say(u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s,
                {changed, QVariantMap(), QStringList()});
        say(player, u"Seeked"_s, {7LL});
        stage.players.pop_front();
        QTRY_VERIFY(!runs(kMusic));
        QCOMPARE(told, 3); // of a change, a jump and the end
        QVERIFY(runs(kSpotify) && !applications.isRunning(u"org.mpris.MediaPlayer2.spotify"_s));
        QVERIFY(!MprisApplications(QDBusConnection(QString())).isRunning(bundleIdentifier(kMusic)));
    }
};

REGISTER_TEST(MprisTest);
#include "MprisTest.moc"
