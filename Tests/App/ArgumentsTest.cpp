#include "App/CommandLine.h"
#include "App/SettingsText.h"
#include "App/StandardSettings.h"
#include "App/UsageReport.h"
#include "NotchKit/Platform/Utc.h"
#include "NotchKit/Tools/AIUsage/AIUsageModel.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

using Verb = CommandLine::Verb;

class ArgumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void verbs_data()
    {
        columns<QString, Verb>();
        const auto rows = [](Verb verb, std::initializer_list<const char *> lines) {
            for (const char *line : lines)
                QTest::newRow(line) << QString::fromLatin1(line) << verb;
        };
        rows(Verb::start, {"", "--open weather", "--open", "-session 10f1", "--open weather -session 10f1"});
        rows(Verb::open, {"open note", "open"});
        rows(Verb::status, {"status --json", "status"});
        rows(Verb::settings, {"settings set hoverDelay 0.3", "settings set x -12", "settings set note --help",
                              "settings open"});
        rows(Verb::usage, {"usage --json --now 2026-03-10T12:00:00Z --home /", "usage --home -x"});
        rows(Verb::prompter,
             {"prompter play", "prompter speed 40", "prompter speed -4", "prompter position +5.5"});
        rows(Verb::help, {"--help", "-h"});
        rows(Verb::version, {"--version"});
        rows(Verb::bad, {"--opne",
                         "--open weather please",
                         "open sundial",
                         "toggle note",
                         "status --xml",
                         "settings set hoverDelay",
                         "settings",
                         "prompter",
                         "prompter dance",
                         "prompter play 3",
                         "prompter speed",
                         "prompter speed fast",
                         "prompter position nan",
                         "prompter speed 3 4",
                         "usage --home",
                         "usage --now noon",
                         "usage --json now",
                         "--help toggle",
                         "weather",
                         "--open=weather",
                         "toggle -session 10f1",
                         "-session"});
    }

    void verbs()
    {
        const auto [line, verb] = fetched<QString, Verb>();
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        const CommandLine parsed = CommandLine::parse(words);
        QCOMPARE(parsed.verb, verb);
        QCOMPARE(parsed.fault.isEmpty(), verb != Verb::bad);
        QCOMPARE(parsed.launch.restored, verb == Verb::start && line.contains(u"-session"));
        if (verb == Verb::settings || verb == Verb::prompter)
            QCOMPARE(parsed.arguments, words.mid(1));
    }

    void settingsTexts_data()
    {
        columns<QString, DefaultsValue, bool>();
        const auto rows = [](const DefaultsValue &example, const char *valid, const char *invalid) {
            QTest::newRow(valid) << QString::fromUtf8(valid) << example << true;
            QTest::newRow(invalid) << QString::fromUtf8(invalid) << example << false;
        };
        rows(false, "true", "yes");
        rows(0.0, "0.35", "inf");
        rows(qint64(0), "-12", "1.5");
        rows(QStringList(), R"(["a","b c"])", "[1]");
        rows(StringMap(), R"({"note":"left"})", R"(["note"])");
        QTest::newRow("text") << "Grüße \"you\"" << DefaultsValue(QString()) << true;
    }

    void settingsTexts()
    {
        const auto [text, example, valid] = fetched<QString, DefaultsValue, bool>();
        const auto value = SettingsText::parse(text, example);
        QCOMPARE(value.has_value(), valid);
        if (valid)
            QCOMPARE(SettingsText::format(value), text);
    }

    void usageAsJson();

    void settingsKnowWhatTheyTake_data()
    {
        columns<QString, QString, QString>();
        const auto row = [](const Text &key, const Text &text, const Text &fault = "") {
            QTest::newRow(qPrintable(key + u' ' + text.left(20)))
                << QString(key) << QString(text) << QString(fault);
        };
        row("openMode", "click");
        row("openMode", "Click", R"(takes hover or click, not "Click")");
        row("hoverDelay", "60");
        row("hoverDelay", "-0.1", R"(takes a number not below 0, not "-0.1")");
        row("claudeBlockBudget", "1099511627776");
        row("claudeBlockBudget", "-1", R"(takes a whole number not below 0, not "-1")");
        row("claudeBlockBudget", "0.5", R"(takes a whole number not below 0, not "0.5")");
        row("weatherLatitude", "-90");
        row("weatherLatitude", "90.5", R"(takes a number from -90 to 90, not "90.5")");
        row("weatherLongitude", "180");
        row("weatherLongitude", "181", R"(takes a number from -180 to 180, not "181")");
        row("prompterSpeed", "8");
        row("prompterSpeed", "7", R"(takes a number from 8 to 140, not "7")");
        row("prompterFontSize", "60");
        row("prompterFontSize", "inf", R"(takes a number from 14 to 60, not "inf")");
        row("tools", R"(["home","note"])");
        row("tools", R"(["home","sundial"])", R"(note or system, not "sundial")");
        row("homeOrder", R"(["home"])", R"(captures or note, not "home")");
        row("homeColumns", R"({"note":"left"})");
        row("homeColumns", R"({"note":"centre"})", R"(note to hidden, left, center or right, not "centre")");
        row("homeColumns", R"({"sundial":"left"})", R"(not "sundial")");
        row("calendarSource", "folders");
        row("calendarSource", "folder", R"(takes evolution, folders or both, not "folder")");
        row("cameraHousings", R"({"eDP-1":"185x32"})");
        row("cameraHousings", R"({"eDP-1":"185"})", R"(not "185")");
        row("launchAtLogin", "yes", R"(takes true or false, not "yes")");
        row("note", "-1");
        row("hoverDelay", QString(5000, u'x'), u'"' + QString(60, u'x') + u"…\""_s);
    }

    void settingsKnowWhatTheyTake()
    {
        const auto [key, text, fault] = fetched<QString, QString, QString>();
        Fakes::MemoryDefaults defaults;
        Fakes::FakeLoginItem loginItem;
        NotchSettings settings(defaults);
        SettingsKeys keys(settings, standardExtras(defaults, loginItem));
        const auto before = keys.get(key);
        const QString said = keys.set(key, text).value_or(u""_s);
        QVERIFY2(said.endsWith(fault), qPrintable(said));
        QCOMPARE(said.isEmpty(), fault.isEmpty());
        QCOMPARE(keys.get(key), fault.isEmpty() ? text : before);
    }
};

void ArgumentsTest::usageAsJson()
{
    const QTemporaryDir home;
    const auto write = [&](const QString &folder, const QByteArray &text) {
        const QDateTime time = QDateTime::fromMSecsSinceEpoch(1773144000500, kUtc);
        QVERIFY(writeFile(home.filePath(folder) + "/a.jsonl"_L1, text, time));
    };
    qputenv("CLAUDE_CONFIG_DIR", "/one, /two");
    const QString config = CommandLine::parse({u"usage"_s}).usage.claudeConfig;
    QCOMPARE(AIUsageHomes::below(u"/me"_s, config).claude,
             (QStringList{u"/me/.claude/projects"_s, u"/me/.config/claude/projects"_s, u"/one/projects"_s,
                          u"/two/projects"_s}));
    const auto report = [&] {
        const QStringList line{u"usage"_s,  u"--now"_s,  u"2026-03-10T13:00:00+01:00"_s,
                               u"--home"_s, home.path(), u"--json"_s};
        return QJsonDocument::fromJson(usageReport(CommandLine::parse(line).usage));
    };
    QCOMPARE(CommandLine::parse({u"usage"_s, u"--home"_s, u"/"_s}).usage.claudeConfig, QString());
    qunsetenv("CLAUDE_CONFIG_DIR");
    QCOMPARE(report(), QJsonDocument::fromJson(R"({"claude": null, "codex": null})"));
    write(u".claude/projects/p"_s,
          R"({"timestamp":"2026-03-10T11:00:00.5Z","message":{"usage":{"output_tokens":9007199254740993}}})"
          "\n");
    write(u".codex/sessions"_s,
          R"({"rate_limits":{"primary":{"used_percent":1.5,"window_minutes":300,"resets_in_seconds":60}}})");
    QCOMPARE(report(), QJsonDocument::fromJson(R"({
        "claude": {"blockTokens": 9007199254740993, "blockStart": "2026-03-10T11:00:00.500Z",
                   "weekTokens": 9007199254740993, "weekMessages": 1,
                   "lastActivity": "2026-03-10T11:00:00.500Z", "peakBlockTokens": 9007199254740993,
                   "dailyTokens": [0, 0, 0, 0, 0, 0, 9007199254740993]},
        "codex": {"primary": {"usedPercent": 1.5, "minutes": 300, "resetsAt": "2026-03-10T12:01:00.000Z"},
                  "secondary": null, "updated": "2026-03-10T12:00:00.500Z"}})"));
}

REGISTER_TEST(ArgumentsTest);
#include "ArgumentsTest.moc"
