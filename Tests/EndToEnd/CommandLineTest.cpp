#include "EndToEnd/Stage.h"

#include <QDirIterator>

/// The program as a command: what it prints, and how it ends.
class CommandLineTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void refusals_data()
    {
        columns<QStringList, int>();
        const auto rows = [](int status, std::initializer_list<const char *> lines) {
            for (const char *line : lines) // No argument in them has a space.
                QTest::newRow(line) << QString::fromLatin1(line).split(u' ') << status;
        };
        // Bad arguments, which are looked at before anything else.
        rows(2, {"frobnicate", "--frobnicate", "open frobnicate", "toggle home", "settings", "settings get",
                 "settings get frobnicate", "settings set hoverDelay", "settings set hoverDelay soon",
                 "settings set openMode Click", "settings set tools home", "usage --home",
                 "usage --home /nowhere", "usage --now noon"});
        // Nothing is running.
        rows(1, {"toggle", "open", "open timer", "close", "quit", "status --json"});
    }

    void refusals()
    {
        const auto [arguments, status] = fetched<QStringList, int>();
        const Session session; // no display either
        const Session::Result result = session.command(arguments);
        QCOMPARE(result.status, status);
        QVERIFY2(isOneLine(result.errors), qPrintable(result.errors));
        QCOMPARE(result.output, QString());
    }

    void helpAndVersion()
    {
        const Session session;
        const Session::Result help = session.command({u"--help"_s});
        QCOMPARE(help.status, 0);
        for (const auto &word : {u"toggle"_s, u"status"_s, u"settings"_s, u"--open"_s})
            QVERIFY2(help.output.contains(word), qPrintable(word));
        const Session::Result version = session.command({u"--version"_s});
        QCOMPARE(version.status, 0);
        QVERIFY2(isOneLine(version.output), qPrintable(version.output));
    }

    void statusTellsTheState()
    {
        QVERIFY(stage().run({{"tools", R"(["home", "note"])"}}));
        QJsonObject status = session().status();
        QCOMPARE(status.value("running"_L1), true);
        for (const auto &field : {u"yielding"_s, u"anyExpanded"_s, u"hasActivity"_s})
            QCOMPARE(status.value(field), false);
        QVERIFY(status.value("visibleTool"_L1).isNull());
        QCOMPARE(status.value("tools"_L1).toArray(), QJsonArray({u"home"_s, u"note"_s}));
        const QJsonObject display = session().display();
        QVERIFY(!display.value("name"_L1).toString().isEmpty());
        QCOMPARE(display.value("frame"_L1).toObject(),
                 QJsonObject({{u"x"_s, 0}, {u"y"_s, 0}, {u"width"_s, 1280}, {u"height"_s, 800}}));
        QCOMPARE(display.value("notchSize"_L1).toObject(),
                 QJsonObject({{u"width"_s, 190}, {u"height"_s, 32}}));
        for (const auto &field : {u"hardware"_s, u"expanded"_s, u"pinned"_s, u"pointerEntered"_s})
            QCOMPARE(display.value(field), false);

        QCOMPARE(session().command({u"open"_s, u"note"_s}).status, 0);
        status = session().status();
        QCOMPARE(status.value("anyExpanded"_L1), true);
        QCOMPARE(status.value("visibleTool"_L1), u"note"_s);
    }

    void settings_data() { noAndYes("nothing running", "live"); }

    void settings()
    {
        const auto [live] = fetched<bool>();
        QVERIFY(!live || stage().run());
        const Session &session = stage().session;
        QCOMPARE(session.setting(u"hoverDelay"_s), u"0.12"_s);
        for (const auto &[name, value] : {std::pair(u"hoverDelay"_s, u"0.5"_s),
                                          {u"openMode"_s, u"click"_s},
                                          {u"allDisplays"_s, u"true"_s},
                                          {u"note"_s, u"Zwölf\nEier"_s}}) {
            QVERIFY(session.set(name, value));
            QCOMPARE(session.setting(name), value);
        }

        const Session::Result refused =
            session.command({u"settings"_s, u"set"_s, u"calendarSource"_s, u"folder"_s});
        QCOMPARE(refused.status, 2);
        QCOMPARE(refused.errors,
                 u"Kestrune: calendarSource takes evolution, folders or both, not \"folder\"\n"_s);

        QString list = session.command({u"settings"_s, u"list"_s}).output;
        for (const auto &name : {u"openMode"_s, u"hoverDelay"_s, u"tools"_s, u"allDisplays"_s, u"note"_s,
                                 u"tickers"_s, u"weatherLatitude"_s, u"homeColumns"_s})
            QVERIFY2(list.contains(name), qPrintable(name));
        QCOMPARE(session.command({u"settings"_s, u"reset"_s, u"hoverDelay"_s}).status, 0);
        QCOMPARE(session.setting(u"hoverDelay"_s), u"0.12"_s);
    }

    void readingChangesNothing_data() { texts({"none", "closed", "left by a kill", "damaged"}); }

    void readingChangesNothing()
    {
        const auto [store] = fetched<QString>();
        Session session;
        const QDir config(session.environment().value(u"XDG_CONFIG_HOME"_s));
        const QTemporaryDir older;
        auto writer = std::make_unique<SqliteUserDefaults>(older.filePath(u"defaults.sqlite"_s));
        writer->setObject(u"notch.tools"_s, QStringList{u"home"_s});
        writer->setObject(u"notch.knownTools"_s, QStringList{u"home"_s, u"captures"_s});
        if (store == "closed"_L1)
            writer.reset();
        if (store != "none"_L1)
            QVERIFY(config.mkpath(u"kestrune"_s));
        if (store == "damaged"_L1)
            QVERIFY(writeFile(config.filePath(u"kestrune/defaults.sqlite"_s), QByteArray(9000, 'z')));
        else if (store != "none"_L1)
            // The log first, which a checkpoint may just be bringing into the file.
            for (const QFileInfo &file :
                 QDir(older.path()).entryInfoList(QDir::Files, QDir::Name | QDir::Reversed))
                QVERIFY(QFile::copy(file.filePath(), config.filePath(u"kestrune/"_s + file.fileName())));

        const auto before = contentsBelow(config.path());
        const bool isOlder = store == "closed"_L1 || store.contains("kill"_L1);
        for (int reading = 0; reading < 2; ++reading) {
            const QString tools = session.setting(u"tools"_s);
            QVERIFY(tools.contains(u"timer"_s));
            QCOMPARE(tools.contains(u"captures"_s), !isOlder);
            const Session::Result list = session.command({u"settings"_s, u"list"_s});
            QCOMPARE(list.status, 0);
            QCOMPARE(list.errors, QString());
            QCOMPARE(contentsBelow(config.path()), before);
        }
    }

    void settingsActAtOnce()
    {
        QVERIFY(stage().run() && session().set(u"openMode"_s, u"click"_s));
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 500));
        QVERIFY(session().set(u"openMode"_s, u"hover"_s));
        QTRY_VERIFY(stage().looksOpen());
        QVERIFY(session().set(u"showWithoutNotch"_s, u"false"_s));
        QTRY_VERIFY(!stage().covered(Place::notch));
        QVERIFY(session().set(u"showWithoutNotch"_s, u"true"_s));
        QTRY_VERIFY(stage().covered(Place::notch));
    }

private:
    /// Every file and folder with its bytes.
    static QMap<QString, QByteArray> contentsBelow(const QString &folder)
    {
        QMap<QString, QByteArray> contents;
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            contents.insert(path, entries.fileInfo().isFile() ? readFile(path) : QByteArray());
        }
        return contents;
    }

    static bool isOneLine(const QString &text) { return text.count(u'\n') == 1 && text.endsWith(u'\n'); }
};

REGISTER_TEST(CommandLineTest);
#include "CommandLineTest.moc"
