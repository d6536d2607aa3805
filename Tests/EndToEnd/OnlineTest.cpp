#include "EndToEnd/Stage.h"
#include "Support/WebStandIn.h"

#include <QDBusMessage>

#include <atomic>

/// Weather and stocks of the real program, whose web services are a server of the test's own.
class OnlineTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_isAway = false;
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
        const auto log = m_server.log();
        QCOMPARE(log.at(0).header("host"), "geocoding-api.open-meteo.com");
        QCOMPARE(log.at(1).header("host"), "api.open-meteo.com");
        for (const auto &request : log) {
            QCOMPARE(request.headers.keys(), (QList<QByteArray>{"accept-encoding", "accept-language",
                                                                "connection", "host", "user-agent"}));
            QCOMPARE(request.header("accept-language"), "*");
        }
    }

    void symbolsByTheirHosts()
    {
        QVERIFY(stage().run({{"hoverDelay", "60"}, {"tickers", R"(["^GSPC", "BAD", "ERR"])"}}));
        QVERIFY(stage().choose(u"stocks"_s));
        QTRY_COMPARE(m_server.log().size(), 5);
        QMap<QByteArray, QList<QByteArray>> hosts;
        for (const auto &request : m_server.log()) {
            hosts[request.target].append(request.header("host"));
            QCOMPARE(request.header("user-agent"), "Mozilla/5.0 (Macintosh) Kestrune");
            QVERIFY(!request.headers.contains("cookie"));
        }
        const QByteArray first = "query1.finance.yahoo.com";
        const QByteArray second = "query2.finance.yahoo.com";
        const auto target = [](const QByteArray &symbol) {
            return "/v8/finance/chart/" + symbol + "?range=1d&interval=5m";
        };
        QCOMPARE(hosts.value(target("%5EGSPC")), QList{first});
        QCOMPARE(hosts.value(target("BAD")), (QList{first, second}));
        QCOMPARE(hosts.value(target("ERR")), (QList{first, second}));

        m_server.forget();
        QVERIFY(session().set(u"tickers"_s, uR"(["NEW"])"_s) && stage().openByHotKey());
        QTRY_COMPARE(m_server.targets(), QList{target("NEW")});
    }

    void asksAnewAfterASleepAndWithTheNetwork()
    {
        session().environment().insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s,
                                       session().environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s));
        QDBusConnection system = session().bus();
        QVERIFY(system.registerService(u"org.freedesktop.login1"_s) &&
                system.registerService(u"org.freedesktop.NetworkManager"_s));
        const auto tell = [&](const QString &path, const QString &interface, const QString &member,
                              const QVariant &value) {
            QDBusMessage signal = QDBusMessage::createSignal(path, interface, member);
            signal << value;
            return system.send(signal);
        };
        QVERIFY(stage().run({{"weatherLatitude", "1"}, {"weatherLongitude", "2"}, {"hoverDelay", "60"}}) &&
                stage().choose(u"weather"_s) && stage().openByHotKey());
        QTRY_COMPARE(m_server.log().size(), 1);
        m_isAway = true;
        QVERIFY(tell(u"/org/freedesktop/login1"_s, u"org.freedesktop.login1.Manager"_s, u"PrepareForSleep"_s,
                     false));
        QTRY_COMPARE(m_server.log().size(), 2); // A quarter of an hour too early, and in vain.
        QTest::qWait(500);
        m_isAway = false;
        QVERIFY(tell(u"/org/freedesktop/NetworkManager"_s, u"org.freedesktop.NetworkManager"_s,
                     u"StateChanged"_s, 70U));
        QTRY_COMPARE(m_server.log().size(), 3);
        QVERIFY(holdsFor([&] { return m_server.log().size() == 3; }, 2500));
        system.unregisterService(u"org.freedesktop.login1"_s);
        system.unregisterService(u"org.freedesktop.NetworkManager"_s);
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
    WebStandIn::Answer serve(const WebStandIn::Request &request) const
    {
        if (m_isAway)
            return {"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n{", 0, {}, WebStandIn::Answer::End::reset};
        if (request.target.startsWith("/v1/search"))
            return WebStandIn::page(200, R"({"results": [{"name": "San Jos)"
                                         "\u00e9"
                                         R"(", "latitude": 9.93, "longitude": -84.08}]})");
        if (request.target.startsWith("/v1/forecast"))
            return WebStandIn::page(200, R"({"current": {"temperature_2m": 70, "weather_code": 0}})");
        if (request.target.contains("BAD"))
            return WebStandIn::page(404, R"({"chart": {"result": null}})");
        if (request.target.contains("ERR"))
            return {"HTTP/1.1 200 OK\r\nContent-Length: 99\r\n\r\n{", 0, {}, WebStandIn::Answer::End::reset};
        return WebStandIn::page(200, R"({"chart": {"result": [{"meta": {"regularMarketPrice": 5}}]}})",
                                "Set-Cookie: tracked=yes; Path=/\r\n");
    }

    std::atomic_bool m_isAway = false;
    WebStandIn m_server{[this](const WebStandIn::Request &request) { return serve(request); }};
};

REGISTER_TEST(OnlineTest);
#include "OnlineTest.moc"
