#include "NotchKit/Tools/Weather/WeatherModel.h"
#include "NotchKit/Kit/Format.h"
#include "NotchKit/Tools/Weather/WeatherFigures.h"
#include "Support/Core.h"

namespace {

QString forecastAddress(const QString &latitude, const QString &longitude, const QString &end = {})
{
    return u"https://api.open-meteo.com/v1/forecast?latitude=%1&longitude=%2"
           "&current=temperature_2m,weather_code,wind_speed_10m"
           "&daily=weather_code,temperature_2m_max,temperature_2m_min&timezone=auto&forecast_days=7%3"_s.arg(
               latitude, longitude, end);
}

HttpReply good(const QByteArray &body) { return {200, body}; }

const QByteArray kForecast =
    R"({"current": {"temperature_2m": 21.5, "weather_code": 3, "wind_speed_10m": 9.4},
    "daily": {"time": ["2027-01-15", "2027-01-16"], "weather_code": [0, 61],
              "temperature_2m_max": [22.5, -0.4], "temperature_2m_min": [-3.5, -12]}})";

/// The core over a service that answers when the test says so.
struct Stage : Fakes::Core
{
    WeatherModel &model = *services.model<WeatherModel>();
    WeatherFigures figures;

    explicit Stage(bool placed = true)
        : Core({{u"notch.useFahrenheit"_s, false}})
    {
        if (placed) {
            settings.setWeatherCity(u"Berlin"_s);
            settings.setWeatherLatitude(52.52);
            settings.setWeatherLongitude(-0.5);
        }
        services.start();
        figures.follow(model, *services.surroundings());
    }

    void locate(const std::optional<Coordinate> &fix)
    {
        model.useCurrentLocation();
        location.questions.answerLast(fix);
        QCoreApplication::processEvents();
    }
    /// How often so far, after another while.
    qsizetype asked(int milliseconds = 0)
    {
        wait(milliseconds);
        return http.asked.size();
    }
};

} // namespace

class WeatherModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void asksWhileOnScreen()
    {
        Stage stage;
        QCOMPARE(stage.asked(3'600'000), 0);
        stage.show(NotchTool::timer);
        QCOMPARE(stage.asked(60'000), 0);
        stage.show(NotchTool::weather);
        QCOMPARE(stage.asked(), 1); // and it stays unanswered: no other
        stage.wait(899'000);
        stage.show(NotchTool::home);
        QCOMPARE(stage.asked(), 1);
        QCOMPARE(stage.asked(1000), 2);
        stage.model.refresh(true);
        QCOMPARE(stage.asked(), 3);
        stage.settings.setColumn(HomeColumn::hidden, HomeWidget::weather);
        stage.wait(3'600'000);
        stage.show({});
        QCOMPARE(stage.asked(3'600'000), 3);

        Stage placeless(false);
        placeless.show(NotchTool::weather);
        placeless.model.refresh(true);
        placeless.settings.setWeatherLatitude(1);
        QCOMPARE(placeless.asked(5000), 0);
    }

    void sleepAndNetwork()
    {
        Stage stage;
        stage.show(NotchTool::weather);
        stage.reply(good(kForecast));
        QCOMPARE(stage.figures.age(), QString());
        stage.clock.sleep(880s); // The time asleep counts.
        QCOMPARE(stage.asked(19'000), 1);
        QCOMPARE(stage.asked(1000), 2);
        stage.reply(good(kForecast));
        const QString age =
            u"As of "_s + Format::clockTime(stage.clock.now().toLocalTime().time(), QLocale());
        stage.clock.sleep(10s);
        Q_EMIT stage.sleep.woke();
        QCOMPARE(stage.asked(1000), 3); // However short it was.
        stage.reply({});
        QCOMPARE(stage.figures.temperature(), u"22°"_s);
        QCOMPARE(stage.figures.age(), age);

        QCOMPARE(stage.asked(58'000), 3);
        Q_EMIT stage.network.returned();
        QCOMPARE(stage.asked(1000), 4);
        Q_EMIT stage.network.returned(); // What is under way may have gone the old way.
        QCOMPARE(stage.asked(1000), 5);
        stage.reply({});
        QCOMPARE(stage.asked(61'000), 6); // Where nobody tells of it.
        QCOMPARE(stage.figures.age(), age);
        stage.reply(good(kForecast));
        QCOMPARE(stage.figures.age(), QString());
        Q_EMIT stage.network.returned();
        QCOMPARE(stage.asked(60'000), 6);

        // Old figures say so while newer ones are on their way.
        stage.show({});
        stage.wait(86'400'000);
        stage.show(NotchTool::weather);
        QVERIFY(stage.figures.age().startsWith(u"As of "_s) && stage.figures.age() != age);
    }

    void figuresAndUnits()
    {
        Stage stage;
        QCOMPARE(stage.figures.temperature(), u"–"_s);
        stage.show(NotchTool::weather);
        stage.reply(good(kForecast));
        QCOMPARE(stage.figures.symbol(), u"cloud.fill"_s);
        QCOMPARE(stage.figures.temperature(), u"22°"_s);
        QCOMPARE(stage.figures.wind(), u"Wind 9 km/h"_s);
        QCOMPARE(stage.figures.range(), u"23° / −4°"_s);
        QCOMPARE(stage.figures.days().size(), 2);
        QCOMPARE(stage.figures.days().at(0).label, u"Today"_s); // the fake clock's day
        QCOMPARE(stage.figures.days().at(1).high, u"0°"_s);

        stage.settings.setUseFahrenheit(true);
        QCOMPARE(stage.figures.wind(), u"Wind 9 km/h"_s);
        stage.wait(1000);
        stage.reply(good(R"({"current": {"temperature_2m": 71}})"));
        QCOMPARE(stage.http.addresses(),
                 (QStringList{forecastAddress(u"52.52"_s, u"-0.5"_s),
                              forecastAddress(u"52.52"_s, u"-0.5"_s,
                                              u"&temperature_unit=fahrenheit&wind_speed_unit=mph"_s)}));
        QVERIFY(stage.http.asked.at(1).headers.isEmpty() && stage.http.asked.at(1).timeout.count() == 60'000);
        QCOMPARE(stage.figures.temperature(), u"71°"_s);
        QCOMPARE(stage.figures.wind(), QString()); // it was in the other unit

        stage.settings.setWeatherLatitude(1e-5);
        stage.settings.setWeatherLongitude(-180);
        QCOMPARE(stage.figures.temperature(), u"–"_s); // it was another place's
        stage.settings.setUseFahrenheit(false);
        stage.wait(1000);
        QCOMPARE(stage.http.addresses().last(), forecastAddress(u"0"_s, u"-180"_s));
    }

    void failuresKeepFigures_data();
    void failuresKeepFigures()
    {
        const auto [status, body, temperature] = fetched<int, QByteArray, QString>();
        Stage stage;
        stage.model.refresh(true);
        stage.reply(good(kForecast));
        stage.model.refresh(true);
        stage.reply({status, body});
        const bool failed = temperature.isEmpty();
        QCOMPARE(stage.model.error(), failed ? u"Weather is not available right now."_s : QString());
        QCOMPARE(stage.figures.temperature(), failed ? u"22°"_s : temperature);
        QCOMPARE(stage.figures.wind(), u"Wind 9 km/h"_s);
        QCOMPARE(stage.model.code(), 3);
        QCOMPARE(stage.model.days().size(), failed ? 2 : 0);
        stage.model.refresh(true);
        stage.reply(good(kForecast));
        QCOMPARE(stage.model.error(), QString());
    }

    void days_data()
    {
        const auto row = columns<QByteArray, QByteArray, QByteArray, QList<int>>();
        const QByteArray three = R"("2027-01-01", "2027-01-02", "2027-01-03")";
        row("whole", three, "1, 2, 3", "1, 2, 3", {1, 2, 3});
        row("a list ends early", three, "1, 2, 3", "1, 2", {1, 2});
        row("more than days", three, "1, 2, 3, 4", "1, 2, 3, 4", {1, 2, 3});
        row("no list", three, "", "1, 2, 3", {});
        row("bad dates", R"("1.1.2027", "2027-02-30", "2027-01-03")", "1, 2, 3", "1, 2, 3", {3});
        row("date of another form", R"("2027-1-1", 5, "2027-01-03T00:00")", "1, 2, 3", "1, 2, 3", {});
        row("a hole", three, "1, null, 3", "1, 2, 3", {1, 3});
        row("wrong type", three, "1, 2, 3", "\"1\", 2, 3", {2, 3});
    }

    void days()
    {
        const auto [time, code, high, dates] = fetched<QByteArray, QByteArray, QByteArray, QList<int>>();
        const auto forecast = parseForecast("{\"daily\": {\"time\": [" + time + "], \"weather_code\": [" +
                                            code + "], \"temperature_2m_max\": [" + high +
                                            "], \"temperature_2m_min\": [0, 0, 0, 0]}}");
        QCOMPARE(each(forecast->days, [](const WeatherDay &day) { return day.date.day(); }), dates);
    }

    void search_data()
    {
        // name: as it is sent; empty for no request
        // city: empty where none is found
        columns<QString, QString, QByteArray, QString>();
        const auto row = [](const QString &query, const QString &name, const QByteArray &body,
                            const QString &city = {}) {
            QTest::addRow("%s %s", qPrintable(query), body.constData()) << query << name << body << city;
        };
        const QByteArray found = R"({"results": [{"name": "Found", "latitude": 1.5, "longitude": -2}, {}]})";
        row(u" \t "_s, {}, {});
        row(QString(QChar(0xd800)), {}, {});
        row(u"  San José "_s, u"San%20Jos%C3%A9"_s, found, u"Found"_s);
        row(u"a&name=b#c+d"_s, u"a%26name%3Db%23c%2Bd"_s, found, u"Found"_s);
        row(u"Paris, FR"_s, u"Paris,%20FR"_s, R"({"results": [{"latitude": 1.5, "longitude": -2}]})",
            u"Paris, FR"_s);
        for (const char *body :
             {"", "{}", R"({"results": []})", R"({"results": [{"latitude": 1.5}]})", "[]",
              R"({"results": 5})", R"({"results": [{"latitude": "1.5", "longitude": -2}]})"})
            row(u"x"_s, u"x"_s, body);
    }

    void search()
    {
        const auto [query, name, body, city] = fetched<QString, QString, QByteArray, QString>();
        Stage stage;
        stage.model.search(query);
        QCOMPARE(stage.model.searching(), !name.isEmpty());
        QCOMPARE(stage.asked(), name.isEmpty() ? 0 : 1);
        if (name.isEmpty())
            return;
        QCOMPARE(stage.http.addresses().first(),
                 u"https://geocoding-api.open-meteo.com/v1/search?count=1&language=en&name="_s + name);
        stage.reply(good(body));
        QVERIFY(!stage.model.searching());
        QCOMPARE(stage.model.error(), city.isEmpty() ? u"City not found."_s : QString());
        QCOMPARE(stage.settings.weatherCity(), city.isEmpty() ? u"Berlin"_s : city);
        QCOMPARE(stage.settings.weatherLatitude(), city.isEmpty() ? 52.52 : 1.5);
        QCOMPARE(stage.asked(), city.isEmpty() ? 1 : 2);
        if (!city.isEmpty())
            QCOMPARE(stage.http.addresses().last(), forecastAddress(u"1.5"_s, u"-2"_s));
    }

    void locationAndOverlaps()
    {
        Stage stage;
        stage.locate(std::nullopt);
        QCOMPARE(stage.model.error(), u"Location not available. Type a city instead."_s);
        QCOMPARE(stage.settings.weatherCity(), u"Berlin"_s);
        stage.locate(Coordinate{48.1, 11.6});
        QCOMPARE(stage.model.error(), QString());
        QCOMPARE(stage.settings.weatherCity(), u"My location"_s);
        QCOMPARE(stage.http.addresses(), QStringList{forecastAddress(u"48.1"_s, u"11.6"_s)});
        stage.locate(Coordinate{-33.868549, -0.0041});
        QCOMPARE(stage.http.addresses().last(), forecastAddress(u"-33.87"_s, u"0"_s));
        QCOMPARE(stage.settings.weatherLatitude(), -33.87);

        // What was asked for last counts.
        stage.model.useCurrentLocation();
        stage.model.search(u"Oslo"_s);
        QVERIFY(!stage.model.locating() &&
                stage.location.questions.isGivenUp(stage.location.questions.count() - 1));
        stage.model.search(u"Rome"_s);
        QVERIFY(stage.http.questions.isGivenUp(2) && stage.model.searching());
        stage.reply(good(R"({"results": [{"latitude": 41.9, "longitude": 12.5}]})"));
        QCOMPARE(stage.settings.weatherCity(), u"Rome"_s);
        QVERIFY(stage.http.questions.isGivenUp(0));
        stage.reply(good(kForecast));
        QCOMPARE(stage.figures.temperature(), u"22°"_s);
    }

    void symbols()
    {
        const QMap<QString, QList<int>> codes{
            {u"sun.max.fill"_s, {0}},
            {u"cloud.sun.fill"_s, {1, 2}},
            {u"cloud.fill"_s, {3}},
            {u"cloud.fog.fill"_s, {45, 48}},
            {u"cloud.drizzle.fill"_s, {51, 57}},
            {u"cloud.rain.fill"_s, {61, 66, 67, 80, 81, 82}},
            {u"cloud.snow.fill"_s, {71, 77, 85, 86}},
            {u"cloud.bolt.rain.fill"_s, {95, 96, 99}},
            {u"cloud.sun"_s, {-1, 4, 44, 46, 50, 58, 60, 68, 69, 70, 78, 79, 83, 84, 87, 94, 100}}};
        for (auto row = codes.cbegin(); row != codes.cend(); ++row) {
            for (const int code : row.value())
                QCOMPARE(weatherSymbol(code), row.key());
        }
        QCOMPARE(weatherSymbol({}), u"cloud.sun"_s);
    }
};

void WeatherModelTest::failuresKeepFigures_data()
{
    // temperature: and without a complaint, unless it is empty
    const auto row = columns<int, QByteArray, QString>();
    row("no reply", 0, QByteArray(), QString());
    row("error page", 503, QByteArray("<html>"), QString());
    row("error in JSON", 400, kForecast, QString());
    row("no JSON", 200, QByteArray("<html>"), QString());
    row("truncated", 200, kForecast.chopped(9), QString());
    row("a list", 200, QByteArray("[1]"), QString());
    row("empty object", 200, QByteArray("{}"), u"22°"_s);
    row("wrong types", 200, QByteArray(R"({"current": {"temperature_2m": "1", "weather_code": 1.5,
                                                   "wind_speed_10m": null}, "daily": []})"),
        u"22°"_s);
    row("one figure", 200, QByteArray(R"({"current": {"temperature_2m": -1e1}})"), u"−10°"_s);
}

REGISTER_TEST(WeatherModelTest);
#include "WeatherModelTest.moc"
