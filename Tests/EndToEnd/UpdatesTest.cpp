#include "Desktop/TrayReader.h"
#include "EndToEnd/Stage.h"
#include "Support/WebStandIn.h"

/// Updates of the real program from a server of the test's own, signed with the makers' script.
class UpdatesTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Kestrune::registerMenuWire();
        write(u"notes.json"_s, R"({"en": "Everything\nis\nnew.", "de": "Alles ist neu."})");
        write(u"kestrune.deb"_s, m_package);
        m_publicHalf = sign({u"--new-key"_s, m_files.filePath(u"key"_s)}).trimmed();
        QCOMPARE(QByteArray::fromBase64(m_publicHalf).size(), 32);
        const QByteArray other = sign({u"--new-key"_s, m_files.filePath(u"other key"_s)}).trimmed();
        const QString offline = m_files.filePath(u"offline key"_s);
        m_offlineHalf = sign({u"--new-key"_s, offline}).trimmed();
        write(u"replacement.json"_s, sign({u"--replace-key"_s, offline, u"1"_s, QString::fromLatin1(other)}));
    }

    void init()
    {
        m_server.forget();
        session().setExecutable(QStringLiteral(KESTRUNE_WITH_TEST_FEED));
        QProcessEnvironment &environment = session().environment();
        environment.insert(u"KESTRUNE_FEED"_s, m_server.url(u"/feed"_s).toString());
        environment.insert(u"KESTRUNE_FEED_KEY"_s, QString::fromLatin1(m_publicHalf));
        environment.insert(u"KESTRUNE_FEED_OFFLINE_KEY"_s, QString::fromLatin1(m_offlineHalf));
        environment.insert(u"PATH"_s, m_files.path() + u':' + environment.value(u"PATH"_s));
        write(u"xdg-open"_s, "#!/bin/sh\necho \"$1\" >> \"$HOME/opened\"\n");
        QFile::setPermissions(m_files.filePath(u"xdg-open"_s), QFile::ReadOwner | QFile::ExeOwner);
        // A tray makes the program offer its menu.
        QVERIFY(session().bus().registerService(u"org.kde.StatusNotifierWatcher"_s));
    }

    void whatTheWindowTells_data()
    {
        // version: none, and the server is of no use
        columns<QString, QString, bool, bool>();
        QTest::newRow("key replaced") << m_newer << u"other key"_s << true << true;
        QTest::newRow("expired") << m_newer << u"key"_s << false << true;
        QTest::newRow("newer") << m_newer << u"key"_s << true << true;
        QTest::newRow("same") << QStringLiteral(KESTRUNE_VERSION) << u"key"_s << false << false;
        QTest::newRow("older") << u"0.0.1"_s << u"key"_s << false << false;
        QTest::newRow("refused") << m_newer << u"other key"_s << false << true;
        QTest::newRow("gone") << QString() << QString() << false << true;
    }

    void whatTheWindowTells()
    {
        const auto [version, key, isNews, offers] = fetched<QString, QString, bool, bool>();
        m_feed = version.isEmpty() ? WebStandIn::page(404, "gone")
                                   : release(version, key, options(QTest::currentDataTag()));
        QVERIFY(stage().run());
        QVERIFY(chooseCheck() && waitUntil([this] { return findWindow(); }));
        QTRY_VERIFY(coloured(kSymbol) > 200); // Not the dots of something under way.
        QTRY_COMPARE(geometry().height() > kWithoutNews, isNews);
        QTRY_COMPARE(coloured(actionButton()) > 200, offers); // A frame after the window has its size.
        QVERIFY(offers || holdsFor([this] { return coloured(actionButton()) == 0; }, 500));
        QCOMPARE(m_server.targets(), QList<QByteArray>{"/feed"});

        input().tap(XK_Escape);
        QTRY_VERIFY(!findWindow());
    }

    /// Whoever starts the program that people get cannot choose its feed.
    void noOtherFeedIsTaken()
    {
        session().setExecutable(Session::executable());
        session().setFlag(u"kestrune"_s, u"kestrune.automaticallyDownloadsUpdates"_s, true);
        m_feed = release(m_newer, u"key"_s);
        QVERIFY(stage().run());
        QVERIFY(waitUntil([this] { return checkEntry().has_value(); }));
        QCOMPARE(checkEntry()->properties.value(u"enabled"_s), QVariant(false));
        QVERIFY(chooseCheck());
        QVERIFY(holdsFor([this] { return m_server.log().isEmpty() && !findWindow(); }, 2000));
    }

    void fetchedAndInstalledWhenAsked()
    {
        m_feed = release(m_newer, u"key"_s);
        QVERIFY(stage().run());
        QVERIFY(chooseCheck() && waitUntil([this] { return offersSomething(); }));
        QVERIFY(!QFile::exists(kept()));
        const QImage offered = picture();
        input().click(geometry().topLeft() + actionButton().center());
        QTRY_COMPARE(readFile(kept()), m_package);
        QTRY_VERIFY(picture() != offered && offersSomething());
        QVERIFY(!QFile::exists(opened()));
        input().click(geometry().topLeft() + actionButton().center());
        QTRY_COMPARE(readFile(opened()), "file://" + kept().toUtf8() + '\n');
    }

    void byItself()
    {
        session().setFlag(u"kestrune"_s, u"kestrune.automaticallyDownloadsUpdates"_s, true);
        m_feed = release(m_newer, u"key"_s);
        QVERIFY(stage().run());
        QVERIFY(holdsFor([this] { return m_server.log().isEmpty(); }, 5000));
        QTRY_VERIFY_WITH_TIMEOUT(findWindow(), 180'000);
        QTRY_VERIFY(offersSomething());
        QCOMPARE(m_server.targets(), (QList<QByteArray>{"/feed", "/kestrune.deb"}));
        QCOMPARE(readFile(kept()), m_package);
        QVERIFY(!QFile::exists(opened()));
        for (const auto &request : m_server.log())
            QCOMPARE(request.headers.keys(), (QList<QByteArray>{"accept-encoding", "accept-language",
                                                                "connection", "host", "user-agent"}));
    }

private:
    static constexpr int kWithoutNews = 180; ///< A window as high as that has room for what is new.
    static constexpr QRect kSymbol{20, 20, 36, 36};

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(m_files.filePath(name));
        QVERIFY(file.remove() || !file.exists());
        QVERIFY(file.open(QFile::WriteOnly) && file.write(text) == text.size());
    }
    static QByteArray sign(const QStringList &arguments)
    {
        QProcess script;
        script.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        script.start(QStringLiteral(KESTRUNE_SIGN_RELEASE), arguments);
        return script.waitForFinished() ? script.readAllStandardOutput() : QByteArray();
    }
    QStringList options(const QByteArray &row) const
    {
        if (row == "expired")
            return {u"--days"_s, u"0"_s};
        return row == "key replaced"
                   ? QStringList{u"--replacement"_s, m_files.filePath(u"replacement.json"_s)}
                   : QStringList();
    }
    WebStandIn::Answer release(const QString &version, const QString &key,
                               const QStringList &options = {}) const
    {
        return WebStandIn::page(200, sign(options + QStringList{u"--key"_s, m_files.filePath(key), version,
                                                                m_files.filePath(u"kestrune.deb"_s),
                                                                m_server.url(u"/kestrune.deb"_s).toString(),
                                                                m_files.filePath(u"notes.json"_s)}));
    }

    QString kept()
    {
        return session().environment().value(u"XDG_CACHE_HOME"_s) + u"/kestrune/updates/kestrune.deb"_s;
    }
    QString opened() { return session().environment().value(u"HOME"_s) + u"/opened"_s; }

    TrayReader panel() { return {session().bus(), Session::busName()}; }
    std::optional<Kestrune::WireLayout> checkEntry() { return panel().entry(u"Check for Updates…"_s); }
    bool chooseCheck()
    {
        return waitUntil([this] { return checkEntry().has_value(); }) && panel().choose(checkEntry()->id);
    }

    bool findWindow()
    {
        const QList<quint32> windows = stage().x.clientWindows();
        const auto found = std::find_if(windows.begin(), windows.end(), [this](quint32 window) {
            return stage().x.title(window) == "Software Update";
        });
        m_window = found == windows.end() ? 0 : *found;
        return m_window != 0;
    }
    QRect geometry() { return stage().x.geometry(m_window); }
    QImage picture() { return stage().x.grab(geometry()); }
    QRect actionButton() { return {440 - 20 - 60, geometry().height() - 20 - 28, 60, 28}; }

    /// Whether the window is there with a button in colour, and neither moves any more.
    bool offersSomething()
    {
        if (!findWindow() || coloured(actionButton()) < 200)
            return false;
        const QRect place = geometry();
        QTest::qWait(200);
        return geometry() == place && coloured(actionButton()) > 200;
    }

    /// How many pixels there have the window's one colour.
    int coloured(const QRect &inside)
    {
        const QImage part = picture().copy(inside);
        int count = 0;
        for (int y = 0; y < part.height(); ++y) {
            for (int x = 0; x < part.width(); ++x) {
                const QColor colour = part.pixelColor(x, y);
                count += colour.blue() > colour.green() + 40 ? 1 : 0;
            }
        }
        return count;
    }

    const QString m_newer = u"99.0.0-beta.2"_s;
    const QByteArray m_package = QByteArray(300'000, 'k');
    QTemporaryDir m_files;
    QByteArray m_publicHalf;
    QByteArray m_offlineHalf;
    WebStandIn::Answer m_feed;
    WebStandIn m_server{[this](const WebStandIn::Request &request) {
        return request.target == "/feed" ? m_feed : WebStandIn::page(200, m_package);
    }};
    xcb_window_t m_window = 0;
};

REGISTER_TEST(UpdatesTest);
#include "UpdatesTest.moc"
