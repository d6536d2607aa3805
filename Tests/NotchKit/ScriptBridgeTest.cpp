#include "NotchKit/Tools/NowPlaying/ScriptBridge.h"
#include "Async/Scope.h"
#include "Support/FakePlatform.h"
#include "Support/TestRegistry.h"

#include <QPainter>

namespace {

/// A picture whose middle alone is red.
QByteArray picture(int width, int height)
{
    QImage image = plainImage({width, height});
    const int side = std::min(width, height);
    QPainter(&image).fillRect((width - side) / 2, (height - side) / 2, side, side, Qt::red);
    return encoded(image);
}

/// What a task gives that `start` starts.
template <typename Value>
struct Outcome
{
    template <typename Start>
    explicit Outcome(Start start)
    {
        m_scope.start(&Outcome::keep<Start>, this, start);
    }

    std::optional<Value> value;

private:
    template <typename Start>
    QCoro::Task<> keep(Start start)
    {
        const Value given = co_await start();
        value = given;
    }

    Scope m_scope;
};

} // namespace

class ScriptBridgeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        // read: "state title|artist|duration|position"
        const auto row = columns<ScriptOutcome, bool, QString>();
        row("playing", u"playing\nSong\nBand\n215.5\n3"_s, false, u"on Song|Band|215.5|3"_s);
        row("paused", u"paused\nSong\nBand\n215.5\n3"_s, false, u"off Song|Band|215.5|3"_s);
        row("another state", u"Playing\nSong\nBand\n9\n3"_s, false, u"off Song|Band|9|3"_s);
        row("comma", u"playing\nA, B\nC, D\n215,5\n1,25"_s, false, u"on A, B|C, D|215.5|1.25"_s);
        row("milliseconds", u"playing\nSong\nBand\n1500\n1,5"_s, true, u"on Song|Band|1.5|1.5"_s);
        row("no numbers", u"playing\nSong\nBand\nmissing value\n"_s, false, u"on Song|Band|0|0"_s);
        row("numbers that are none", u"playing\nSong\nBand\nnan\ninf"_s, false, u"on Song|Band|0|0"_s);
        row("too large a number", u"playing\nSong\nBand\n1e999\n1"_s, false, u"on Song|Band|0|1"_s);
        row("further lines", u"playing\n\n\n1\n2\n3\n4"_s, false, u"on ||1|2"_s);
        row("stopped", QString(), false, u"none"_s);
        row("too short", u"playing\nSong\nBand\n215"_s, false, u"none"_s);
        row("data", ScriptOutcome(QByteArray("playing\na\nb\n1\n2")), false, u"none"_s);
        row("failed", ScriptOutcome(), false, u"none"_s);
        row("refused", ScriptOutcome(ScriptNotPermitted()), false, u"denied"_s);
    }

    void answers()
    {
        const auto [outcome, spotify, read] = fetched<ScriptOutcome, bool, QString>();
        Fakes::FakeScripts scripts;
        Fakes::FakeHttp http;
        ScriptBridge bridge(scripts, http, Fakes::pictures());
        const MediaPlayer player = spotify ? MediaPlayer::spotify : MediaPlayer::music;
        scripts.answer(PlayerScripts::status(player), outcome);
        const Outcome<ScriptBridge::Result> made([&] { return bridge.state(player); });
        QTRY_VERIFY(made.value);
        QString seen = std::holds_alternative<ScriptBridge::Denied>(*made.value) ? u"denied"_s : u"none"_s;
        if (const auto *track = std::get_if<PlayingTrack>(&*made.value)) {
            seen = u"%1 %2|%3|%4|%5"_s.arg(track->playing ? u"on"_s : u"off"_s, track->title, track->artist)
                       .arg(track->duration)
                       .arg(track->position);
        }
        QCOMPARE(seen, read);
    }

    void covers_data()
    {
        // sent: by the host of an address
        // side: 0 for no cover
        const auto row = columns<ScriptOutcome, QByteArray, bool, int>();
        const QByteArray none;
        const auto text = [](const char *address) { return ScriptOutcome(QString::fromLatin1(address)); };
        const auto data = [](const QByteArray &bytes) { return ScriptOutcome(bytes); };
        row("data", data(picture(600, 600)), none, false, ScriptBridge::kCoverSide);
        row("wide", data(picture(900, 400)), none, false, ScriptBridge::kCoverSide);
        row("high", data(picture(40, 90)), none, false, 40);
        row("no data", data(none), none, false, 0);
        row("no picture", data("hello"), none, false, 0);
        row("half a picture", data(picture(64, 64).left(40)), none, false, 0);
        row("bomb", data(pictureBomb()), none, false, 0);
        row("too long", data(picture(9, 9) + QByteArray(kMostCoverBytes, 'x')), none, false, 0);
        row("address", text("https://host/cover"), picture(50, 50), true, 50);
        row("address of no picture", text("https://host/cover"), QByteArray("<html>"), true, 0);
        row("dead address", text("https://host/gone"), picture(50, 50), true, 0);
        row("unsafe address", text("http://host/cover"), picture(50, 50), false, 0);
        row("no address", text("missing value"), none, false, 0);
        row("broken address", text("https://ho st/cover"), none, false, 0);
        row("failed", ScriptOutcome(), none, false, 0);
        row("refused", ScriptOutcome(ScriptNotPermitted()), none, false, 0);
    }

    void covers()
    {
        const auto [outcome, sent, asked, side] = fetched<ScriptOutcome, QByteArray, bool, int>();
        Fakes::FakeScripts scripts;
        Fakes::FakeHttp http;
        http.replies = {{u"https://host/cover"_s, {200, sent}}, {u"https://host/gone"_s, {404, sent}}};
        ScriptBridge bridge(scripts, http, Fakes::pictures());
        scripts.answer(PlayerScripts::artwork(MediaPlayer::spotify), outcome);
        const Outcome<QImage> made([&] { return bridge.artwork(MediaPlayer::spotify); });
        QTRY_VERIFY(made.value);
        QCOMPARE(made.value->size(), QSize(side, side));
        QCOMPARE(http.asked.size(), asked ? 1 : 0);
        QVERIFY(side == 0 || !sent.isEmpty() || made.value->pixelColor(0, side / 2) == QColor(Qt::red));
        for (const HttpRequest &request : http.asked)
            QVERIFY(request.headers.isEmpty() && request.mostBytes == kMostCoverBytes &&
                    request.timeout == 10s);
    }
};

REGISTER_TEST(ScriptBridgeTest);
#include "ScriptBridgeTest.moc"
