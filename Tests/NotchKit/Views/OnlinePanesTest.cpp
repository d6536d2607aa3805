#include "NotchKit/Kit/FigureAge.h"
#include "NotchKit/Tools/Stocks/StocksModel.h"
#include "WindowStage.h"

namespace {

/// A pane of an online tool with the keyboard.
struct Stage : WindowStage
{
    Fakes::FakeHttp &http = core.http;

    explicit Stage(NotchTool tool, const Fakes::MemoryDefaults::Values &stored = {})
        : WindowStage(stored)
    {
        open(tool);
    }

    QQuickItem *field() const { return find(u"LineField"_s); }
    bool shows(const QString &text) const
    {
        for (QQuickItem *item : items(window->contentItem())) {
            if (item->isVisible() && item->inherits("QQuickText") && item->property("text") == text)
                return true;
        }
        return false;
    }
    void press(const QString &help) const
    {
        const QQuickItem *item = button(help);
        click(item, {item->width() / 2, item->height() / 2});
    }
    void type(const QString &text) const
    {
        for (const QChar character : text)
            QTest::keyClick(window.get(), character.toLatin1());
    }
    void answer(const QByteArray &body)
    {
        http.questions.answerLast({body.isEmpty() ? 0 : 200, body});
        QTest::qWait(1);
    }
};

} // namespace

class OnlinePanesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cityIsSoughtAndChanged();
    void symbolsAreEdited();
    void oldQuotesSayWhenTheyCame();
};

void OnlinePanesTest::cityIsSoughtAndChanged()
{
    Stage stage(NotchTool::weather);
    QVERIFY(stage.field() && stage.field()->hasActiveFocus());
    QVERIFY(stage.shows(u"Forecast by Open-Meteo. Only the city's coordinates are sent."_s));
    stage.type(u"oslo"_s);
    stage.key(Qt::Key_Return);
    stage.answer("{}");
    QVERIFY(stage.field() && stage.shows(u"City not found."_s));
    stage.press(u"Search"_s);
    stage.answer(R"({"results": [{"name": "Oslo", "latitude": 59.9, "longitude": 10.7}]})");
    QVERIFY(!stage.field() && stage.shows(u"Oslo"_s) && stage.shows(u"–"_s));
    stage.answer(
        R"({"current": {"temperature_2m": -2.5}, "daily": {"time": ["2027-01-15"], "weather_code": [71],
                     "temperature_2m_max": [0.4], "temperature_2m_min": [-7]}})");
    QVERIFY(stage.shows(u"−3°"_s) && stage.shows(u"Today"_s) && stage.shows(u"0°"_s) &&
            stage.shows(u"−7°"_s));

    stage.press(u"Change city"_s);
    QVERIFY(stage.field() && stage.field()->hasActiveFocus());
    QCOMPARE(stage.field()->property("text"), QString());
    stage.key(Qt::Key_Escape);
    QVERIFY(!stage.field() && stage.core.model().expanded());
    stage.press(u"Change city"_s);
    stage.press(u"Use my location"_s);
    stage.core.location.questions.answer(0, Coordinate{59.9, 10.7}); // the same place again
    QTRY_VERIFY(!stage.field() && stage.shows(u"My location"_s));
    stage.answer({});
    QVERIFY(stage.shows(u"Weather is not available right now."_s) && stage.shows(u"−3°"_s));
    QVERIFY(stage.shows(FigureAge::text(stage.core.clock.now(), stage.core.clock.now())));
    stage.key(Qt::Key_Escape);
    QVERIFY(!stage.core.model().expanded());
}

void OnlinePanesTest::symbolsAreEdited()
{
    Stage stage(NotchTool::stocks, {{u"notch.tickers"_s, QStringList{u"AAPL"_s, u"BAD"_s}}});
    QVERIFY(!stage.field());
    stage.http.questions.answer(0, {200, R"({"chart": {"result": [{"meta": {"regularMarketPrice": 1234.5,
                                   "previousClose": 1000, "shortName": "Apple"}}]}})"});
    for (std::size_t i = 1; i < 3; ++i) {
        stage.http.questions.answer(i, {404, {}});
        QTest::qWait(1);
    }
    QTRY_VERIFY(stage.shows(u"Apple"_s));
    QVERIFY(stage.shows(u"1,234.50"_s) || stage.shows(u"1234.50"_s));
    QVERIFY(stage.shows(u"+23.45%"_s) && stage.shows(u"Not found: BAD"_s));
    QVERIFY(stage.shows(u"Delayed quotes from Yahoo Finance."_s));

    stage.press(u"Edit symbols"_s);
    QVERIFY(stage.field() && stage.field()->hasActiveFocus());
    QCOMPARE(stage.field()->property("text").toString(), u"AAPL, BAD"_s);
    stage.key(Qt::Key_End);
    stage.type(u" x"_s);
    stage.key(Qt::Key_Escape);
    QVERIFY(!stage.field() && stage.core.model().expanded());
    stage.press(u"Edit symbols"_s);
    stage.key(Qt::Key_End);
    stage.type(u",,tsla  aapl"_s);
    stage.key(Qt::Key_Return);
    QVERIFY(!stage.field());
    QCOMPARE(stage.core.settings.tickers(), (QStringList{u"AAPL"_s, u"BAD"_s, u"TSLA"_s}));
    QCOMPARE(stage.http.asked.size(), 6);

    stage.press(u"Edit symbols"_s);
    stage.field()->setProperty("text", u" , "_s);
    stage.key(Qt::Key_Return);
    QVERIFY(stage.field() && !stage.shows(u"Apple"_s));
    stage.key(Qt::Key_Escape);
    QVERIFY(!stage.core.model().expanded());
}

void OnlinePanesTest::oldQuotesSayWhenTheyCame()
{
    Stage stage(NotchTool::stocks, {{u"notch.tickers"_s, QStringList{u"AAPL"_s}}});
    stage.answer({});
    stage.answer({});
    QVERIFY(stage.shows(u"Quotes are not available right now."_s));
    StocksModel &stocks = *stage.core.services.model<StocksModel>();
    stocks.refresh(true);
    stage.answer(R"({"chart": {"result": [{"meta": {"regularMarketPrice": 1, "shortName": "Apple"}}]}})");
    QTRY_VERIFY(stage.shows(u"Apple"_s) && !stage.shows(u"Quotes are not available right now."_s));
    const QDateTime then = stage.core.clock.now();
    stocks.refresh(true);
    stage.answer({});
    stage.answer({});
    QTRY_VERIFY(stage.shows(FigureAge::text(then, then)) && stage.shows(u"Apple"_s));
    stage.core.wait(86'400'000); // and of which day
    QTRY_VERIFY(stage.shows(FigureAge::text(then, stage.core.clock.now())));
    QVERIFY(FigureAge::text(then, stage.core.clock.now()) != FigureAge::text(then, then));
}

REGISTER_TEST(OnlinePanesTest);
#include "OnlinePanesTest.moc"
