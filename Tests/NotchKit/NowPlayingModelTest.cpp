#include "NotchKit/Tools/NowPlaying/NowPlayingModel.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "Support/Core.h"

namespace {

constexpr auto kMusic = MediaPlayer::music;
constexpr auto kSpotify = MediaPlayer::spotify;

QByteArray picture(int side) { return encoded(plainImage({side, side})); }

/// The core with both players, which say what the test makes them say: "", "denied", "failed", or the state,
/// the title and the position.
struct Stage : Fakes::Core
{
    NowPlayingModel &model = *services.model<NowPlayingModel>();

    explicit Stage(const QString &music = u"off"_s, const QString &spotify = u"off"_s)
    {
        say(kMusic, music);
        say(kSpotify, spotify);
    }

    void say(MediaPlayer player, const QString &words)
    {
        if (words == "off"_L1)
            players.running.remove(bundleIdentifier(player));
        else
            players.running.insert(bundleIdentifier(player));
        scripts.answer(PlayerScripts::status(player), outcome(words));
    }
    static ScriptOutcome outcome(const QString &words)
    {
        if (words == "denied"_L1)
            return ScriptNotPermitted();
        const QStringList parts = words.split(u' ');
        if (parts.size() < 3)
            return words.isEmpty() ? ScriptOutcome(QString()) : ScriptFailed();
        return u"%1\n%2\nBand\n100\n%3"_s.arg(parts.at(0), parts.at(1), parts.at(2));
    }

    /// Looks and waits for what comes of it, the cover included.
    void refresh()
    {
        model.refresh();
        Fakes::finishWork();
    }
    /// "Music Song 3 denied", or what of that is known.
    QString shown() const
    {
        QStringList words;
        if (model.player())
            words << playerName(*model.player());
        if (const auto track = model.track())
            words << track->title << QString::number(track->position);
        if (model.permissionDenied())
            words << u"denied"_s;
        return words.join(u' ');
    }
    /// How often Music was asked for its song so far.
    qsizetype looks()
    {
        m_looks += scripts.take().count(PlayerScripts::status(kMusic));
        return m_looks;
    }

private:
    qsizetype m_looks = 0;
};

} // namespace

class NowPlayingModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chooses_data()
    {
        const auto row = columns<QString, QString, QString>();
        row("both playing", u"playing A 1"_s, u"playing B 2"_s, u"Music A 1"_s);
        row("both paused", u"paused A 1"_s, u"paused B 2"_s, u"Music A 1"_s);
        row("second plays", u"paused A 1"_s, u"playing B 2"_s, u"Spotify B 2"_s);
        row("first plays", u"playing A 1"_s, u"paused B 2"_s, u"Music A 1"_s);
        row("only the second runs", u"off"_s, u"paused B 2"_s, u"Spotify B 2"_s);
        row("first stopped", u""_s, u"paused B 2"_s, u"Spotify B 2"_s);
        row("first failed", u"failed"_s, u"paused B 2"_s, u"Spotify B 2"_s);
        row("nothing runs", u"off"_s, u"off"_s, u""_s);
        row("both stopped", u""_s, u""_s, u""_s);
        row("first refuses", u"denied"_s, u"paused B 2"_s, u"Spotify B 2"_s);
        row("second refuses", u"paused A 1"_s, u"denied"_s, u"Music A 1 denied"_s);
        row("only one, and refuses", u"denied"_s, u"off"_s, u"denied"_s);
        row("refused and stopped", u"denied"_s, u""_s, u"denied"_s);
    }

    void chooses()
    {
        const auto [music, spotify, shown] = fetched<QString, QString, QString>();
        Stage stage(music, spotify);
        stage.refresh();
        QCOMPARE(stage.shown(), shown);
        const QStringList executed = stage.scripts.take();
        QCOMPARE(executed.contains(PlayerScripts::status(kMusic)), music != "off"_L1);
        QCOMPARE(executed.contains(PlayerScripts::status(kSpotify)), spotify != "off"_L1);

        const QSignalSpy tracks(&stage.model, &NowPlayingModel::trackChanged);
        const QSignalSpy players(&stage.model, &NowPlayingModel::playerChanged);
        stage.refresh();
        QVERIFY2(tracks.isEmpty() && players.isEmpty(), "nothing has changed");
    }

    void ofTwoThatArePausedTheLastUsedShows()
    {
        Stage stage(u"paused A 1"_s, u"playing B 2"_s);
        for (const auto &[music, spotify, shown] :
             {std::tuple(u"paused A 1"_s, u"playing B 2"_s, u"Spotify B 2"_s),
              {u"paused A 1"_s, u"paused B 2"_s, u"Spotify B 2"_s},
              {u"playing A 1"_s, u"paused B 2"_s, u"Music A 1"_s},
              {u"paused A 1"_s, u"paused B 2"_s, u"Music A 1"_s},
              {u"paused A 1"_s, u"paused C 2"_s, u"Spotify C 2"_s}}) {
            stage.say(kMusic, music);
            stage.say(kSpotify, spotify);
            stage.refresh();
            QCOMPARE(stage.shown(), shown);
        }
    }

    void playersThatTellAreNotAsked()
    {
        Stage stage;
        stage.players.tells = true;
        stage.say(kMusic, u"playing A 10"_s);
        NowPlayingModel model(stage.settings, stage.clock, stage.players, stage.scripts, stage.http,
                              Fakes::pictures());
        const auto tick = [&](int seconds, std::optional<NotchTool> visible) {
            stage.wait(1000);
            model.tick({stage.clock.now(), seconds, visible.has_value(), visible});
            Fakes::finishWork();
        };
        tick(1, {});
        QCOMPARE(stage.looks(), 1);
        for (int i = 2; i <= 30; ++i)
            tick(i, {});
        QCOMPARE(stage.looks(), 1);
        QVERIFY(model.track());
        tick(31, NotchTool::nowPlaying); // the position goes on by itself
        QCOMPARE(stage.looks(), 1);
        QVERIFY(model.track()->position > 39);
        stage.say(kMusic, u"paused B 3"_s);
        stage.players.changed();
        stage.players.changed();
        stage.wait(100);
        Fakes::finishWork();
        QCOMPARE(stage.looks(), 2);
        QCOMPARE(model.track()->title, u"B"_s);
        stage.say(kMusic, u"failed"_s); // it is too busy to answer, and tells nothing more
        stage.players.changed();
        stage.wait(100);
        Fakes::finishWork();
        stage.say(kMusic, u"playing C 1"_s);
        stage.wait(1000);
        Fakes::finishWork();
        QCOMPARE(model.track()->title, u"C"_s);
        QCOMPARE(stage.looks(), 4);
        stage.settings.setEnabled(NotchTool::nowPlaying, false);
        stage.players.changed();
        tick(32, {});
        QCOMPARE(stage.looks(), 4);
    }

    void aCoverThatComesLateIsShown()
    {
        Stage stage(u"playing A 1"_s);
        const QString script = PlayerScripts::artwork(kMusic);
        const auto say = [&](const QString &further) {
            stage.scripts.answer(PlayerScripts::status(kMusic), u"playing\nA\nB\n9\n1"_s + further);
        };
        say({});
        stage.refresh();
        QVERIFY(stage.clock.running() == 0); // there is none to wait for
        say(u"\ncover:named"_s);
        stage.refresh();
        QVERIFY(stage.model.artwork().isNull());
        stage.scripts.answer(script, picture(11));
        stage.wait(1000);
        Fakes::finishWork();
        QCOMPARE(stage.model.artwork().width(), 11);
        QVERIFY(stage.clock.running() == 0);
        say(u"\ncover:never"_s);
        stage.scripts.answer(script, ScriptFailed());
        stage.scripts.take();
        stage.refresh();
        for (int i = 0; i < 60; ++i) {
            stage.wait(1000);
            Fakes::finishWork();
        }
        QCOMPARE(stage.looks(), 5);
    }

    void seeks()
    {
        Stage stage(u"playing A 1"_s);
        stage.refresh();
        stage.scripts.take();
        stage.model.seek(50); // this one cannot
        QVERIFY(stage.scripts.take().isEmpty());
        stage.scripts.answer(PlayerScripts::status(kMusic), u"playing\nA\nB\n100\n1\nseekable"_s);
        stage.refresh();
        stage.scripts.take();
        stage.model.seek(140);
        QCOMPARE(stage.model.track()->position, 100.0);
        QCOMPARE(stage.scripts.take(), QStringList{PlayerScripts::seek(kMusic, 100)});
    }

    void remembersARefusal()
    {
        Stage stage(u"denied"_s);
        stage.refresh();
        for (const auto &[words, shown] : {std::pair(u""_s, u"denied"_s),
                                           {u"off"_s, u"denied"_s},
                                           {u"playing A 1"_s, u"Music A 1"_s},
                                           {u"denied"_s, u"denied"_s}}) {
            stage.say(kMusic, words);
            stage.refresh();
            QCOMPARE(stage.shown(), shown);
        }
    }

    void looksInTime_data()
    {
        // looks: in twenty seconds
        columns<bool, bool, bool, int>();
        QTest::newRow("closed") << true << false << true << 10;
        QTest::newRow("closed, without activities") << false << false << true << 4;
        QTest::newRow("open, without activities") << false << true << true << 10;
        QTest::newRow("off") << true << true << false << 0;
    }

    void looksInTime()
    {
        const auto [live, open, enabled, looks] = fetched<bool, bool, bool, int>();
        Stage stage(u"playing A 1"_s);
        stage.settings.setLiveActivities(live);
        stage.settings.setEnabled(NotchTool::nowPlaying, enabled);
        stage.services.setAnyExpanded(open);
        stage.services.start();
        stage.wait(20'000);
        QTRY_COMPARE(stage.looks(), looks);
        QTest::qWait(10);
        QCOMPARE(stage.looks(), looks);
        QCOMPARE(stage.model.track().has_value(), enabled);
    }

    void looksWhenShown()
    {
        Stage stage(u"playing A 1"_s);
        stage.services.show(NotchTool::nowPlaying);
        QTRY_COMPARE(stage.looks(), 1);
        stage.services.show(NotchTool::home);
        QTRY_COMPARE(stage.looks(), 2);
        QTRY_VERIFY(stage.model.track());
        stage.settings.setColumn(HomeColumn::hidden, HomeWidget::nowPlaying);
        for (const auto tool : {std::optional(NotchTool::home), std::optional(NotchTool::timer), {}})
            stage.services.show(tool);
        stage.settings.setEnabled(NotchTool::nowPlaying, false);
        QVERIFY(!stage.model.track());
        stage.services.show(NotchTool::nowPlaying);
        QTest::qWait(10);
        QCOMPARE(stage.looks(), 2);
    }

    void coverFollowsTheSong()
    {
        Stage stage(u"playing A 1"_s);
        const QString script = PlayerScripts::artwork(kMusic);
        const auto asked = [&] { return stage.scripts.take().count(script); };
        stage.scripts.answer(script, picture(11));
        stage.refresh();
        QCOMPARE(stage.model.artwork().width(), 11);
        QCOMPARE(asked(), 1);
        stage.say(kMusic, u"paused A 7"_s);
        stage.refresh();
        QCOMPARE(asked(), 0);
        stage.scripts.answer(script, ScriptFailed());
        stage.say(kMusic, u"paused B 0"_s);
        stage.refresh();
        stage.refresh();
        QCOMPARE(asked(), 1);
        QVERIFY(stage.model.artwork().isNull());
        stage.scripts.answer(script, picture(12));
        for (const QString &words : {u"off"_s, u"paused B 0"_s}) {
            stage.say(kMusic, words);
            stage.refresh();
        }
        QCOMPARE(stage.model.artwork().width(), 12);

        // The same song in the other player has a cover of its own.
        stage.say(kMusic, u"off"_s);
        stage.say(kSpotify, u"playing B 0"_s);
        stage.scripts.answer(PlayerScripts::artwork(kSpotify), u"https://host/b"_s);
        stage.http.replies = {{u"https://host/b"_s, {200, picture(13)}}};
        stage.refresh();
        QCOMPARE(stage.model.artwork().width(), 13);
    }

    void commands()
    {
        Stage stage(u"playing A 1"_s);
        stage.model.next();
        QTest::qWait(10);
        QVERIFY2(stage.scripts.take().isEmpty(), "there is no player yet");
        stage.refresh();
        stage.scripts.take();
        stage.model.playPause();
        QTRY_COMPARE(stage.clock.running(), 1U);
        QCOMPARE(stage.scripts.take(), QStringList{PlayerScripts::command(PlayerCommand::playPause, kMusic)});
        stage.say(kMusic, u"paused A 2"_s);
        stage.wait(249);
        QTest::qWait(10);
        QCOMPARE(stage.shown(), u"Music A 1"_s);
        stage.wait(1);
        QTRY_COMPARE(stage.shown(), u"Music A 2"_s);
        QVERIFY(!stage.model.track()->playing && stage.clock.running() == 0);

        const qsizetype looks = stage.looks();
        stage.model.next();
        stage.model.previous();
        QTRY_COMPARE(stage.clock.running(), 2U);
        stage.wait(250);
        QTRY_COMPARE(stage.looks(), looks + 2);
    }

    void activity()
    {
        Stage stage(u"paused A 1"_s);
        QVERIFY(!stage.services.hasActivity());
        stage.refresh();
        QCOMPARE(stage.services.activityTool(), NotchTool::nowPlaying);
        stage.services.model<TimerModel>()->start(600);
        QCOMPARE(stage.services.activityTool(), NotchTool::timer);
        // It does not open the wings, but stays in those that a song opens.
        stage.services.model<TimerModel>()->pause();
        QCOMPARE(stage.services.activityTool(), NotchTool::timer);
        stage.settings.setEnabled(NotchTool::nowPlaying, false);
        QVERIFY(!stage.services.hasActivity());
        stage.settings.setEnabled(NotchTool::nowPlaying, true);
        stage.services.model<TimerModel>()->reset();
        stage.refresh();
        QCOMPARE(stage.services.activityTool(), NotchTool::nowPlaying);
        stage.settings.setLiveActivities(false);
        QVERIFY(!stage.services.hasActivity());
        stage.settings.setLiveActivities(true);
        stage.say(kMusic, u""_s);
        stage.refresh();
        QVERIFY(!stage.services.hasActivity());
    }

    void endsWhileItLooks()
    {
        Fakes::Core core;
        core.players.running = {bundleIdentifier(kMusic)};
        core.scripts.answer(PlayerScripts::status(kMusic), u"playing\nA\nB\n1\n1"_s);
        for (int i = 0; i < 20; ++i) {
            core.scripts.held = i % 2 == 0;
            NowPlayingModel model(core.settings, core.clock, core.players, core.scripts, core.http,
                                  Fakes::pictures());
            model.refresh();
            QTest::qWait(i % 4);
            model.next();
        }
        core.scripts.release();
        QTest::qWait(20);
        core.wait(1000);
    }
};

REGISTER_TEST(NowPlayingModelTest);
#include "NowPlayingModelTest.moc"
