#include "Desktop/BusStandIn.h"
#include "EndToEnd/Stage.h"
#include "Support/WebStandIn.h"

#include <QDBusMetaType>
#include <QImage>

/// Texts as strangers could write them, through every source that reaches a view: the program shows all of
/// its views, goes on, and asks nobody for anything but what it says that it asks for.
class HostileTextsTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qDBusRegisterMetaType<QMap<QString, QString>>(); }

    void onlyWhatIsDocumentedIsAskedFor_data()
    {
        const auto row = columns<QString>();
        const QString page = m_web.url(u"/trap"_s).toString();
        row("markup",
            u"<img src=\"%1\"><b>&lt;<a href='%1'>x</a>![x](%1)<style>@import url(%1);</style>"_s.arg(page));
        row("not to be seen",
            u"\u202Egnp.exe\u2066a\u200Fb\u2069 \u061Ca\u200B\u200D\u2060\uFEFF\u00AD\n\r\n\t\v\u2028\u0001z"_s +
                QChar(0xD83D) + u"a\uFFFE"_s);
        row("marks", u"Z"_s + u"\u0300\u0489\u20DD"_s.repeated(3000));
        row("10 MB", u"https://x.example/ "_s.repeated(550'000));
    }

    void onlyWhatIsDocumentedIsAskedFor()
    {
        const auto [text] = fetched<QString>();
        m_text = text;
        m_web.forget();
        session().environment().insert(u"KESTRUNE_SERVICES"_s, m_web.url().toString());
        const QString bus = session().environment().value(u"DBUS_SESSION_BUS_ADDRESS"_s);
        ServiceStandIn player(bus, u"org.mpris.MediaPlayer2.stranger"_s);
        ServiceStandIn sharing(bus, u"org.kde.kdeconnect"_s);
        QVERIFY(player.appear([this](const QDBusMessage &call) { return song(call); }));
        QVERIFY(sharing.appear([this](const QDBusMessage &call) { return devices(call); }));
        writeFiles();
        const QByteArray noteAndScript = text.left(100'000).toUtf8();
        QVERIFY(stage().run({{"hoverDelay", "60"},
                             {"weatherLatitude", "1"},
                             {"weatherLongitude", "2"},
                             {"tickers", R"(["<b>A", "B"])"}}));
        for (const char *setting : {"note", "prompterText", "weatherCity"})
            QVERIFY(session().set(QLatin1String(setting), QString::fromUtf8(noteAndScript)));
        QVERIFY(session().set(u"shelfPaths"_s, shelf()));
        session().copy(u"UTF8_STRING"_s, text.toUtf8());
        QTRY_VERIFY(session().status().value("hasActivity"_L1).toBool());

        QTRY_COMPARE(session().copiedTexts().size(), 1);
        for (const QString &tool : session().tools()) {
            QCOMPARE(session().command({u"open"_s, tool}).status, 0);
            QVERIFY2(waitUntil([&] { return session().selected() == tool && stage().looksOpen(); }),
                     qPrintable(tool));
            QTest::qWait(600);
        }
        QCOMPARE(session().command({u"settings"_s, u"open"_s}).status, 0);
        QTRY_VERIFY(targets("/v8/finance/chart/%3Cb%3EA?") > 0 && targets("/v1/forecast?latitude=1&") > 0);
        QVERIFY(session().isRunning());

        for (const QByteArray &target : m_web.targets())
            qInfo("asked for %s", target.constData());
        QCOMPARE(targets("/v1/forecast?") + targets("/v8/finance/chart/"), m_web.log().size());
    }

private:
    qsizetype targets(const char *beginning) const
    {
        return std::ranges::count_if(m_web.targets(),
                                     [&](const auto &it) { return it.startsWith(beginning); });
    }

    WebStandIn::Answer serve(const WebStandIn::Request &request) const
    {
        if (request.target.startsWith("/v1/forecast"))
            return WebStandIn::page(200, R"({"current": {"temperature_2m": 70, "weather_code": 0}})");
        const QJsonObject meta{
            {u"regularMarketPrice"_s, 5}, {u"currency"_s, m_text}, {u"shortName"_s, m_text}};
        const QJsonArray result{QJsonObject{{u"meta"_s, meta}}};
        return WebStandIn::page(
            200, QJsonDocument(QJsonObject{{u"chart"_s, QJsonObject{{u"result"_s, result}}}}).toJson());
    }

    std::optional<QDBusMessage> song(const QDBusMessage &call) const
    {
        if (call.member() != "GetAll"_L1)
            return call.createReply();
        const QString text = QString::fromUtf8(m_text.toUtf8());
        const QVariantMap song{{u"xesam:title"_s, text},
                               {u"xesam:artist"_s, QStringList{text, text}},
                               {u"mpris:artUrl"_s, m_web.url(u"/trap"_s).toString()},
                               {u"mpris:length"_s, 1'000'000'000LL}};
        return call.createReply(QVariantMap{
            {u"PlaybackStatus"_s, u"Playing"_s}, {u"Metadata"_s, song}, {u"Position"_s, 1'000'000LL}});
    }

    std::optional<QDBusMessage> devices(const QDBusMessage &call) const
    {
        if (call.member() != "deviceNames"_L1)
            return call.createReply(true);
        const QString text = QString::fromUtf8(m_text.toUtf8());
        return call.createReply(QVariant::fromValue(QMap<QString, QString>{{u"_1_"_s, text}}));
    }

    /// As much of the text as a file's name can be.
    QString name() const
    {
        QString fitting = m_text.left(50);
        return fitting.replace(u'/', u'\u2215');
    }
    QString home() { return session().environment().value(u"HOME"_s); }
    QString shelf()
    {
        const QJsonArray paths{home() + u'/' + name(),
                               home() + u"/Pictures/Screenshots/"_s + name() + u".png"_s};
        return QString::fromUtf8(QJsonDocument(paths).toJson());
    }

    /// A screenshot, a file for the shelf, a calendar and its list.
    void writeFiles()
    {
        const QString calendars = session().environment().value(u"XDG_DATA_HOME"_s) + u"/calendars/"_s;
        const QByteArray today = QDate::currentDate().toString(u"yyyyMMdd"_s).toLatin1();
        const QByteArray line = m_text.toUtf8().replace('\n', "\\n").replace('\r', "");
        const QByteArray texts =
            "SUMMARY:" + line + "\r\nLOCATION:" + line + "\r\nDESCRIPTION:" + line + "\r\n";
        QVERIFY(writeFile(calendars + name() + u"/list.ics"_s,
                          "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nX-WR-CALNAME:" + line +
                              "\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTART;VALUE=DATE:" + today + "\r\n" + texts +
                              "END:VEVENT\r\nBEGIN:VTODO\r\nUID:2\r\n" + texts +
                              "END:VTODO\r\nEND:VCALENDAR\r\n"));
        QVERIFY(writeFile(home() + u'/' + name(), "a file"));
        QVERIFY(QDir(home()).mkpath(u"Pictures/Screenshots"_s));
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::red);
        picture.setText(u"Software"_s, m_text.left(100'000));
        QVERIFY(picture.save(home() + u"/Pictures/Screenshots/"_s + name() + u".png"_s));
    }

    QString m_text;
    WebStandIn m_web{[this](const WebStandIn::Request &request) { return serve(request); }};
};

REGISTER_TEST(HostileTextsTest);
#include "HostileTextsTest.moc"
