#include "NotchKit/Tools/Stocks/StocksModel.h"
#include "NotchKit/Tools/Stocks/QuoteFormat.h"
#include "NotchKit/Tools/Stocks/Sparkline.h"
#include "Support/Core.h"

namespace {

HttpReply chart(const QByteArray &meta, const QByteArray &rest = {})
{
    return {200, R"({"chart": {"result": [{"meta": {)" + meta + "}" + rest + "}]}}"};
}

QString address(int host, const QString &symbol)
{
    return u"https://query%1.finance.yahoo.com/v8/finance/chart/%2?range=1d&interval=5m"_s.arg(host).arg(
        symbol);
}

/// The core with a list of symbols, over a service that answers when the test says so.
struct Stage : Fakes::Core
{
    StocksModel &model = *services.model<StocksModel>();

    explicit Stage(const QStringList &symbols = {u"AAPL"_s, u"BAD"_s, u"TSLA"_s})
    {
        settings.setTickers(symbols);
        services.start();
    }

    void answer(std::size_t index, const HttpReply &reply)
    {
        http.questions.answer(index, reply);
        QCoreApplication::processEvents();
    }
    /// How often so far, after another while.
    qsizetype asked(int milliseconds = 0)
    {
        wait(milliseconds);
        return http.asked.size();
    }
    QStringList symbols() const { return each(model.quotes(), &StockQuote::symbol); }
};

} // namespace

class StocksModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksWhileOnScreen()
    {
        Stage stage({u"A"_s});
        stage.wait(3'600'000);
        stage.show(NotchTool::home); // its block is hidden
        QCOMPARE(stage.asked(120'000), 0);
        stage.show(NotchTool::stocks);
        QCOMPARE(stage.asked(60'000), 1);
        stage.settings.setColumn(HomeColumn::left, HomeWidget::stocks);
        stage.show(NotchTool::home);
        QCOMPARE(stage.asked(), 1);
        QCOMPARE(stage.asked(1000), 2);
        stage.model.refresh(true);
        QCOMPARE(stage.asked(), 3);
        stage.settings.setTickers({u"B"_s});
        QCOMPARE(stage.asked(1000), 4);
        stage.show({});
        QCOMPARE(stage.asked(3'600'000), 4);
        stage.settings.setTickers({});
        stage.model.refresh(true);
        QCOMPARE(stage.asked(), 4);
    }

    void gathersInTheOrderOfTheList()
    {
        Stage stage;
        const QSignalSpy changes(&stage.model, &StocksModel::quotesChanged);
        stage.show(NotchTool::stocks);
        QCOMPARE(stage.http.addresses(),
                 (QStringList{address(1, u"AAPL"_s), address(1, u"BAD"_s), address(1, u"TSLA"_s)}));
        const HttpRequest request = stage.http.asked.first();
        QCOMPARE(request.headers,
                 (decltype(request.headers){{"User-Agent", "Mozilla/5.0 (Macintosh) Kestrune"}}));
        QVERIFY(request.timeout.count() == 60'000 && stage.model.loading());

        stage.answer(2, chart(R"("regularMarketPrice": 3)"));
        stage.answer(1, {404, R"({"chart": {"result": null}})"});
        QCOMPARE(stage.http.addresses().mid(3), QStringList{address(2, u"BAD"_s)});
        stage.answer(0, {502, "<html>"});
        stage.answer(4, chart(R"("regularMarketPrice": 1)")); // the second host knows
        QVERIFY(stage.model.loading() && stage.model.quotes().isEmpty());
        stage.answer(3, {0, {}});
        QCOMPARE(stage.symbols(), (QStringList{u"AAPL"_s, u"TSLA"_s}));
        QCOMPARE(stage.model.failed(), QStringList{u"BAD"_s});
        QVERIFY(!stage.model.loading() && changes.count() == 1);
        QCOMPARE(stage.asked(), 5);

        // Nothing is merged: what fails this time is gone.
        stage.model.refresh(true);
        for (std::size_t i = 5; i < 10; ++i)
            stage.answer(i, i == 6 ? chart(R"("regularMarketPrice": 2)") : HttpReply{200, "[]"});
        QCOMPARE(stage.symbols(), QStringList{u"BAD"_s});
        QCOMPARE(stage.model.failed(), (QStringList{u"AAPL"_s, u"TSLA"_s}));
    }

    void offlineKeepsTheQuotes()
    {
        Stage stage({u"A"_s, u"B"_s});
        stage.show(NotchTool::stocks);
        stage.answer(0, chart(R"("regularMarketPrice": 1)"));
        stage.answer(1, chart(R"("regularMarketPrice": 2)"));
        QVERIFY(!stage.model.oldestTime().isValid());
        const QDateTime then = stage.clock.now();

        // B alone could not be asked; of A the service says that it knows it no more.
        stage.clock.sleep(61s);
        QCOMPARE(stage.asked(1000), 4);
        for (const auto &[index, status] : {std::pair(2, 404), {3, 0}, {4, 0}, {5, 503}})
            stage.answer(index, {status, {}});
        QCOMPARE(stage.symbols(), QStringList{u"B"_s});
        QCOMPARE(stage.model.failed(), QStringList{u"A"_s});
        QCOMPARE(stage.model.unreached(), QStringList());
        QCOMPARE(stage.model.oldestTime(), then);

        Q_EMIT stage.network.returned();
        QCOMPARE(stage.asked(1000), 8);
        stage.answer(6, {});
        stage.answer(7, chart(R"("regularMarketPrice": 3)"));
        stage.answer(8, {});
        QCOMPARE(stage.model.unreached(), QStringList{u"A"_s}); // It has none to stay.
        QCOMPARE(stage.model.failed(), QStringList());
        QVERIFY(!stage.model.oldestTime().isValid());
        Q_EMIT stage.sleep.woke();
        QCOMPARE(stage.asked(1000), 11);
    }

    void aNewRefreshCounts()
    {
        Stage stage({u"OLD"_s, u"OLD"_s});
        stage.show(NotchTool::stocks);
        QCOMPARE(stage.asked(), 1);
        stage.model.setSymbols(u"new"_s);
        QVERIFY(stage.http.questions.isGivenUp(0));
        stage.answer(1, chart(R"("regularMarketPrice": 1)"));
        stage.answer(0, chart(R"("regularMarketPrice": 2)"));
        QCOMPARE(stage.symbols(), QStringList{u"NEW"_s});
        QVERIFY(!stage.model.loading());
    }

    void quotes_data();
    void quotes()
    {
        const auto [reply, found, name, change, points] =
            fetched<HttpReply, bool, QString, double, QList<double>>();
        const auto quote = parseQuote(u"X"_s, reply.body);
        QCOMPARE(quote.has_value(), found);
        if (!quote)
            return;
        QCOMPARE(quote->name, name);
        QCOMPARE(quote->change(), change);
        QCOMPARE(quote->points, points);
        QCOMPARE(quote->currency.has_value(), reply.body.contains("USD"));
    }

    void encodesSymbols()
    {
        Stage stage({u"^GSPC"_s, u"EURUSD=X"_s, u"A?B#C%"_s, u"Ä"_s});
        stage.show(NotchTool::stocks);
        QCOMPARE(stage.http.addresses(),
                 (QStringList{address(1, u"%5EGSPC"_s), address(1, u"EURUSD=X"_s),
                              u"https://query1.finance.yahoo.com/v8/finance/chart/A%3FB%23C%25"
                              "?range=1d&interval=5m"_s,
                              u"https://query1.finance.yahoo.com/v8/finance/chart/%C3%84"
                              "?range=1d&interval=5m"_s}));
    }

    void drafts_data()
    {
        const auto row = columns<QString, QStringList>();
        row("commas and blanks", u"aapl,,tsla  msft"_s, QStringList{u"AAPL"_s, u"TSLA"_s, u"MSFT"_s});
        row("around", u" ,\taapl\u00a0^gspc\n, "_s, QStringList{u"AAPL"_s, u"^GSPC"_s});
        row("twice", u"b,a,B,c,A"_s, QStringList{u"B"_s, u"A"_s, u"C"_s});
        row("nothing", u" , "_s, QStringList());
    }

    void drafts()
    {
        const auto [draft, symbols] = fetched<QString, QStringList>();
        Stage stage({u"OLD"_s});
        stage.model.setSymbols(draft);
        QCOMPARE(stage.settings.tickers(), symbols);
        QCOMPARE(stage.asked(), symbols.size());
    }

    void writesNumbers_data()
    {
        // named by what is written in English
        const auto row = columns<double, bool, QString>();
        row("5,234.19", 5234.186, true, u"5.234,19"_s);
        row("187.30", 187.3, true, u"187,30"_s);
        row("1,234,568", 1234567.8, true, u"1.234.568"_s);
        row("0.08421", 0.08421, true, u"0,08421"_s);
        row("0.50", 0.5, true, u"0,50"_s);
        row("1.0842", 1.0842, true, u"1,0842"_s);
        row("9.25", 9.25, true, u"9,25"_s);
        row("0.000000001", 1e-9, true, u"0,000000001"_s);
        row("0.00001235", 0.0000123456, true, u"0,00001235"_s);
        row("0.00", 0, true, u"0,00"_s);
        row("+1.23%", 0.012345, false, u"+1,23%"_s);
        row("−50.00%", -0.5, false, u"−50,00%"_s);
        row("0.00%", -0.00001, false, u"0,00%"_s);
        row("+1,250.00%", 12.5, false, u"+1.250,00%"_s);
    }

    void writesNumbers()
    {
        const auto [number, isPrice, german] = fetched<double, bool, QString>();
        const QLocale before;
        const auto written = [&](const QString &locale) {
            QLocale::setDefault(QLocale(locale));
            return isPrice ? QuoteFormat::price(number) : QuoteFormat::change(number);
        };
        const QStringList texts{written(u"en_US"_s), written(u"de_DE"_s)};
        QLocale::setDefault(before);
        QCOMPARE(texts, (QStringList{QString::fromUtf8(QTest::currentDataTag()), german}));
    }

    void writesCurrencies()
    {
        const QLocale before;
        for (const auto &[locale, currency, text] : {std::tuple(u"en_US"_s, u"USD"_s, u"$187.30"_s),
                                                     {u"de_DE"_s, u"USD"_s, u"187,30\u00a0$"_s},
                                                     {u"en_CA"_s, u"CAD"_s, u"$187.30"_s},
                                                     {u"en_CA"_s, u"USD"_s, u"USD\u00a0187.30"_s},
                                                     {u"en_GB"_s, u"GBp"_s, u"GBp\u00a0187.30"_s}}) {
            QLocale::setDefault(QLocale(locale));
            QCOMPARE(QuoteFormat::price(187.3, currency), text);
        }
        QLocale::setDefault(before);
        const auto index = chart(R"("regularMarketPrice": 1, "currency": "USD", "instrumentType": "INDEX")");
        QVERIFY(!parseQuote(u"^X"_s, index.body)->currency);
    }

    void sparkline()
    {
        using Line = QPolygonF;
        const QSizeF size(100, 20);
        QCOMPARE(Sparkline::line({}, size), Line());
        QCOMPARE(Sparkline::line({5}, size), Line());
        QCOMPARE(Sparkline::line({5, 5, 5}, size), Line({{0, 20}, {50, 20}, {100, 20}}));
        QCOMPARE(Sparkline::line({1, 3, 2}, size), Line({{0, 20}, {50, 0}, {100, 10}}));
        // Half of the least range.
        QVERIFY(std::abs(Sparkline::line({1, 1 + 5e-5}, size).at(1).y() - 10) < 1e-6);
    }
};

void StocksModelTest::quotes_data()
{
    const auto row = columns<HttpReply, bool, QString, double, QList<double>>();
    row("whole",
        chart(
            R"("regularMarketPrice": 110, "chartPreviousClose": 100, "previousClose": 1, "shortName": "Short",
                 "longName": "Long", "currency": "USD")",
            R"(, "indicators": {"quote": [{"close": [1, null, 2.5, "3", 4]}]})"),
        true, u"Short"_s, 0.1, {1, 2.5, 4});
    row("other names", chart(R"("regularMarketPrice": 1, "previousClose": 2, "longName": "Long")"), true,
        u"Long"_s, -0.5, {});
    row("no more than a price", chart(R"("regularMarketPrice": 1)"), true, u"X"_s, 0, {});
    row("previous close of 0", chart(R"("regularMarketPrice": 1, "chartPreviousClose": 0)"), true, u"X"_s, 0,
        {});
    row("wrong types",
        chart(R"("regularMarketPrice": 4, "chartPreviousClose": "1", "previousClose": 2, "shortName": 5,
                 "longName": {}, "currency": 7)",
              R"(, "indicators": {"quote": {"close": [1]}})"),
        true, u"X"_s, 1, {});
    for (const char *body : {"", "{}", "[]", R"({"chart": {"result": []}})", R"({"chart": {"result": [7]}})",
                             R"({"chart": {"result": [{"meta": {"regularMarketPrice": "1"}}]}})",
                             R"({"chart": {"result": [{"meta": {"regularMarketPrice": null}}]}})"})
        row(body, {200, body}, false, "", 0, {});
}

REGISTER_TEST(StocksModelTest);
#include "StocksModelTest.moc"
