#include "EndToEnd/Stage.h"
#include "Support/WebStandIn.h"

/// Weather and stocks of the real program, whose web services are a server of the test's own.
class OnlineTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_server.forget();
        session().environment().insert(u"KESTRUNE_SERVICES"_s, m_server.url().toString());
    }

    void nothingIsAskedWhileClosed()
    {
        QVERIFY(stage().run({{"weatherLatitude", "1"}, {"weatherLongitude", "2"}, {"hoverDelay", "60"}}));
        QVERIFY(holdsFor([&] { return m_server.log().isEmpty(); }, 2500));
        QVERIFY(stage().choose(u"weather"_s) && stage().choose(u"stocks"_s));
        QTRY_COMPARE(m_server.log().size(), 5);
        QVERIFY(holdsFor([&] { return m_server.log().size() == 5; }, 2500));
    }

    void aCityByKeyboard()
    {
        QVERIFY(stage().run({{"hoverDelay", "60"}, {"useFahrenheit", "true"}}) &&
                stage().choose(u"weather"_s));
        QVERIFY(stage().openByHotKey() && m_server.log().isEmpty());
        input().type("san jos");
        input().tap(XK_Return);
        QTRY_COMPARE(session().setting(u"weatherCity"_s), u"San José"_s);
        QCOMPARE(session().setting(u"weatherLatitude"_s), u"9.93"_s);
        QTRY_COMPARE(m_server.targets(),
                     (QList<QByteArray>{"/v1/search?count=1&language=en&name=san%20jos",
                                        "/v1/forecast?latitude=9.93&longitude=-84.08"
                                        "&current=temperature_2m,weather_code,wind_speed_10m"
                                        "&daily=weather_code,temperature_2m_max,temperature_2m_min"
                                        "&timezone=auto&forecast_days=7"
                                        "&temperature_unit=fahrenheit&wind_speed_unit=mph"}));
        QCOMPARE(m_server.log().at(0).header("host"), "geocoding-api.open-meteo.com");
        QCOMPARE(m_server.log().at(1).header("host"), "api.open-meteo.com");
    }

    void onlyLoopbackStandsIn()
    {
        for (const QString &refused :
             {u"https://127.0.0.1:1"_s, u"http://192.0.2.1:80"_s, u"http://localhost:80"_s,
              u"http://127.0.0.1"_s, u"http://127.0.0.1:80/x"_s, u"junk"_s}) {
            session().environment().insert(u"KESTRUNE_SERVICES"_s, refused);
            const auto result = session().command({});
            QCOMPARE(result.status, 2);
            QCOMPARE(result.errors.count(u'\n'), 1);
        }
    }

private:
    static WebStandIn::Answer serve(const WebStandIn::Request &request)
    {
        if (request.target.startsWith("/v1/search"))
            return WebStandIn::page(200, R"({"results": [{"name": "San Jos)"
                                         "\u00e9"
                                         R"(", "latitude": 9.93, "longitude": -84.08}]})");
        if (request.target.startsWith("/v1/forecast"))
            return WebStandIn::page(200, R"({"current": {"temperature_2m": 70, "weather_code": 0}})");
        return WebStandIn::page(200, R"({"chart": {"result": [{"meta": {"regularMarketPrice": 5}}]}})");
    }

    WebStandIn m_server{&serve};
};

REGISTER_TEST(OnlineTest);
#include "OnlineTest.moc"
