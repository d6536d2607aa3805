#include "NotchKit/Tools/AIUsage/AIUsageModel.h"
#include "NotchKit/Tools/AIUsage/AIUsagePresentation.h"
#include "NotchKit/Tools/AIUsage/CodexReader.h"
#include "NotchKit/Tools/AIUsage/UsageGauge.h"
#include "Support/Core.h"

namespace {

const QDateTime now = QDateTime::fromSecsSinceEpoch(1'800'000'000, kUtc);

QByteArray limits(const QByteArray &primary) { return "{\"rate_limits\":{\"primary\":" + primary + "}}\n"; }

QByteArray used(int percent) { return limits("{\"used_percent\":" + QByteArray::number(percent) + "}"); }

/// A home folder, and the hub that reads it.
struct Home
{
    QTemporaryDir folder;
    Fakes::Core core{{}, folder.path()};
    NotchServices &services = core.services;
    AIUsageModel &model = *services.model<AIUsageModel>();
    AIUsagePresentation shown;

    Home() { shown.follow(model, *services.surroundings()); }

    void write(const char *place, const QByteArray &text, int age = 0) const
    {
        QVERIFY(writeFile(folder.filePath(QLatin1String(place)), text, core.clock.now().addSecs(-age)));
    }

    void writeClaude(qint64 tokens, int minutesAgo) const
    {
        const QByteArray time =
            core.clock.now().addSecs(-60 * minutesAgo).toString(Qt::ISODateWithMs).toLatin1();
        write((".claude/projects/p/" + time + ".jsonl").constData(),
              "{\"timestamp\":\"" + time +
                  "\",\"message\":{\"usage\":{\"output_tokens\":" + QByteArray::number(tokens) + "}}}\n");
    }

    std::optional<double> usedPercent() const
    {
        const auto codex = model.codex();
        return codex && codex->primary ? std::optional(codex->primary->usedPercent) : std::nullopt;
    }
};

} // namespace

class AIUsageModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void windows_data()
    {
        const auto row = columns<std::optional<UsageWindow>>();
        const QDateTime reset = now.addSecs(90);
        row(R"({"used_percent": 41.5, "window_minutes": 300, "resets_at": 1800000090})",
            UsageWindow{41.5, 300, reset});
        row(R"({"used_percent": 7, "resets_in_seconds": 90, "window_minutes": "x"})",
            UsageWindow{7, 0, reset});
        row(R"({"used_percent": 7, "resets_in_seconds": 5, "resets_at": 1800000090})",
            UsageWindow{7, 0, reset});
        row(R"({"used_percent": 7, "window_minutes": 1e300, "resets_at": 1e300})", UsageWindow{7, 0, {}});
        row(R"({"used_percent": "7"})", {});
        row(R"({"window_minutes": 300})", {});
        row(R"([])", {});
    }

    void windows()
    {
        const auto [window] = fetched<std::optional<UsageWindow>>();
        const QJsonDocument json = QJsonDocument::fromJson(QTest::currentDataTag());
        QVERIFY(!json.isNull() && CodexReader::window(json.object(), now) == window);
    }

    void lastLineOfATail_data()
    {
        // percent: -1 for none
        columns<QByteArray, double>();
        QTest::newRow("the last one") << used(1) + used(2) + "{\"other\":1}\n" << 2.0;
        QTest::newRow("nested") << "{\"a\":[1,{\"b\":" + used(3).trimmed() + "}]}\n" << 3.0;
        QTest::newRow("without its line feed") << used(1) + used(2).trimmed() << 2.0;
        QTest::newRow("still being written") << used(1) + used(2).left(30) << 1.0;
        QTest::newRow("broken") << used(1) + used(2).left(30) + '\n' << -1.0;
        QTest::newRow("cut at its start") << used(1).mid(5) << -1.0;
        QTest::newRow("no limits in the last") << used(1) + "{\"rate_limits\":null}\n" << 1.0;
        QTest::newRow("no limits") << QByteArray("{\"rate_limits\":null}\n{\"rate_limits\":null}") << -1.0;
        QTest::newRow("too deep") << QByteArray(100'000, '[') + used(1) << -1.0;
        QTest::newRow("nothing") << QByteArray() << -1.0;
    }

    void lastLineOfATail()
    {
        const auto [tail, percent] = fetched<QByteArray, double>();
        const auto found = CodexReader::lastRateLimits(tail, now);
        QCOMPARE(found && found->first ? found->first->usedPercent : -1, percent);
    }

    void fiveNewestSessionsAreTried()
    {
        const Home home;
        const auto percent = [&] {
            const auto codex =
                CodexReader::readCodex(home.folder.filePath(u".codex"_s), now, StopFlag(false));
            return codex ? codex->primary->usedPercent : -1;
        };
        QCOMPARE(percent(), -1);
        home.write(".codex/sessions/2026/03/six.jsonl", used(6), 600);
        for (const char *name : {"1", "2", "3", "4", "5"})
            home.write((QByteArray(".codex/sessions/") + name + ".jsonl").constData(), "{}\n", 60);
        QCOMPARE(percent(), -1);
        // Beyond the tail.
        home.write(".codex/sessions/2026/5.jsonl", used(5) + QByteArray(512 << 10, '\n'), 10);
        QCOMPARE(percent(), -1);
        home.write(".codex/sessions/5.jsonl", used(50), 300); // now the sixth
        QCOMPARE(percent(), -1);
        home.write(".codex/sessions/2026/5.jsonl", used(51) + QByteArray(511 << 10, '\n'), 200);
        QCOMPARE(percent(), 51.0);
    }

    void readsAtMostOnceAMinute()
    {
        Home home;
        home.core.settings.setReadCodexUsage(true);
        home.write(".codex/sessions/a.jsonl", used(1));
        home.services.start();
        home.core.show(NotchTool::aiUsage);
        QVERIFY(home.model.loading() && !home.model.codexMissing());
        QTRY_COMPARE(home.usedPercent(), 1);
        home.write(".codex/sessions/a.jsonl", used(2));
        home.core.wait(60'000);
        QVERIFY(!home.model.loading());
        home.model.refresh(true);
        home.model.refresh(true);
        QTRY_COMPARE(home.usedPercent(), 2);
        QVERIFY(QFile::remove(home.folder.filePath(u".codex/sessions/a.jsonl"_s)));
        home.core.wait(61'000);
        QVERIFY(home.model.loading());
        QTRY_VERIFY(home.model.codexMissing() && !home.model.codex() && !home.model.loading());
        Q_EMIT home.core.sleep.woke();
        home.core.wait(1000);
        QVERIFY(home.model.loading());
        QTRY_VERIFY(!home.model.loading());
        home.core.show({});
        home.core.wait(600'000);
        QVERIFY(!home.model.loading());
    }

    void aSourceSwitchedOnIsReadAtOnce()
    {
        Home home;
        home.write(".codex/sessions/a.jsonl", used(1));
        home.writeClaude(5, 1);
        home.services.start();
        home.core.show(NotchTool::aiUsage);
        QVERIFY(!home.model.loading());
        home.model.connectCodex();
        QVERIFY(home.model.loading() && home.core.settings.readCodexUsage());
        home.core.settings.setReadClaudeUsage(true); // while the first reading goes on
        QTRY_VERIFY(!home.model.loading());
        QVERIFY(!home.model.claude() && !home.model.claudeMissing());
        home.core.wait(1000);
        QTRY_COMPARE(home.model.claude().value_or(ClaudeUsage{}).weekTokens, 5);
        // A source that is off keeps what it had.
        home.core.settings.setReadCodexUsage(false);
        QVERIFY(QFile::remove(home.folder.filePath(u".codex/sessions/a.jsonl"_s)));
        home.model.refresh(true);
        QTRY_VERIFY(!home.model.loading());
        QVERIFY(home.usedPercent() == 1 && !home.model.codexMissing());
    }

    void homeReadsOnlyForItsBlock()
    {
        Home home;
        home.core.settings.setReadCodexUsage(true);
        home.core.settings.setColumn(HomeColumn::hidden, HomeWidget::aiUsage);
        home.services.show(NotchTool::home);
        home.services.show(NotchTool::timer);
        QVERIFY(!home.model.loading());
        home.core.settings.setColumn(HomeColumn::left, HomeWidget::aiUsage);
        home.services.show(NotchTool::home);
        QVERIFY(home.model.loading());
    }

    void endsWhileReading()
    {
        for (int i = 0; i < 20; ++i) {
            Home home;
            home.core.settings.setReadClaudeUsage(true);
            home.write(".claude/projects/huge.jsonl", {});
            // Hours to read.
            QVERIFY(QFile::resize(home.folder.filePath(u".claude/projects/huge.jsonl"_s), qint64(1) << 42));
            home.model.refresh(true);
            QTest::qWait(i);
        }
        QVERIFY(Threads::waitForAll(60s));
    }

    void cardTexts()
    {
        Home home;
        AIUsagePresentation &shown = home.shown;
        QVERIFY(!shown.codexOn() && !shown.claudeOn());
        home.model.connectCodex();
        home.core.settings.setReadClaudeUsage(true);
        QCOMPARE(shown.codexHint(), u"Reading…"_s);
        const auto reread = [&] {
            QTRY_VERIFY(!home.model.loading());
            home.model.refresh(true);
            QTRY_VERIFY(!home.model.loading());
        };
        reread();
        QCOMPARE(shown.codexHint(), u"No Codex activity found yet. Use Codex once and it appears here."_s);
        QCOMPARE(shown.claudeHint(), u"No Claude Code activity found."_s);

        home.write(".codex/sessions/a.jsonl", limits(R"({"used_percent": 57.3, "resets_in_seconds": 60})"));
        home.writeClaude(300'000, 60);
        home.writeClaude(600'000, 600);
        QSignalSpy changes(&shown, &AIUsagePresentation::changed);
        reread();
        QVERIFY(shown.codexHint().isEmpty() && shown.claudeHint().isEmpty());
        QCOMPARE(shown.codexWindows().size(), 1);
        const UsageLine window = shown.codexWindows().constFirst();
        QCOMPARE(window.title + window.text, u"5-hour window42% left"_s);
        QCOMPARE(window.fraction, 0.573);
        QVERIFY(window.resets.startsWith("Resets: "_L1));
        QVERIFY(shown.codexUpdated().startsWith("Updated "_L1));
        QCOMPARE(shown.claudeBlock().text, u"50% of your busiest block this week"_s);
        QCOMPARE(shown.claudeTokens(), QLocale().toString(300'000) + " tokens"_L1);
        QVERIFY(!shown.claudeBlock().resets.isEmpty());
        QCOMPARE(shown.days().size(), 7);
        home.core.settings.setClaudeBlockBudget(200'000);
        QCOMPARE(shown.claudeBlock().text, u"150% of your budget"_s);
        QCOMPARE(shown.claudeBlock().fraction, 1.5);

        home.write(".codex/sessions/a.jsonl", limits(R"({"used_percent": 90, "resets_at": 1})"));
        reread();
        QCOMPARE(shown.codexWindows().constFirst().text, u"100% left"_s);
        QCOMPARE(shown.codexWindows().constFirst().fraction, 0.0);
        QVERIFY(shown.codexWindows().constFirst().resets.startsWith("Renewed; figures of "_L1));

        home.core.wait(5 * 3'600'000); // the block is over; a refresh that finds nothing new says so once
        reread();
        QCOMPARE(shown.claudeTokens(), u"0 tokens"_s);
        QVERIFY(shown.claudeBlock().resets.isEmpty());
        home.core.settings.setClaudeBlockBudget(0);
        QCOMPARE(shown.claudeBlock().text, u"0% of your busiest block this week"_s);
        changes.clear();
        reread();
        // Codex counts its delay from each reading; at the same time nothing differs.
        QCOMPARE(changes.count(), 0);
    }

    void times_data()
    {
        const auto row = columns<QString, QString, QString>();
        row("today", "2026-03-10T14:30:00", "en_GB", "14:30");
        row("today, twelve hours", "2026-03-10T14:30:00", "en_US", "2:30 PM");
        row("no language", "2026-03-10T14:30:00", "C", "14:30");
        row("tomorrow", "2026-03-11T00:00:00", "en_GB", "Wed 00:00");
        row("yesterday", "2026-03-09T23:59:59", "en_GB", "Mon 23:59");
        row("six days ahead", "2026-03-16T09:05:00", "de_DE", "Mo. 09:05");
        row("a week ahead", "2026-03-17T09:05:00", "de_DE", "17.03.26 09:05");
    }

    void times()
    {
        const auto [time, locale, text] = fetched<QString, QString, QString>();
        const QDateTime noon = QDateTime::fromString(u"2026-03-10T12:00:00"_s, Qt::ISODate);
        QString shown = AIUsagePresentation::timeText(QDateTime::fromString(time, Qt::ISODate).toUTC(),
                                                      noon.toUTC(), QLocale(locale));
        shown.replace(QChar(0x202f), u' '); // What newer Qt puts before AM and PM.
        QCOMPARE(shown, text);
    }

    void gauges()
    {
        QCOMPARE(UsageGauge::filled(0, 100), 4.0);
        QCOMPARE(UsageGauge::filled(1.5, 100), 100.0);
        QCOMPARE(UsageGauge::filled(std::nan(""), 100), 4.0);
        QVERIFY(UsageGauge::color(0.6) == UsageGauge::color(-1));
        QVERIFY(UsageGauge::color(0.601) == UsageGauge::color(0.85));
        QVERIFY(UsageGauge::color(0.851) == UsageGauge::color(7));
        QVERIFY(UsageGauge::color(0.6) != UsageGauge::color(0.85) &&
                UsageGauge::color(0.85) != UsageGauge::color(1));
        QCOMPARE(UsageGauge::percent(0.425), u"43%"_s);
        QCOMPARE(UsageGauge::percent(1.5), u"100%"_s);
        QCOMPARE(AIUsagePresentation::leftText(99.6), u"0% left"_s);
        QCOMPARE(AIUsagePresentation::leftText(1e300), u"0% left"_s);
        QCOMPARE(AIUsagePresentation::leftText(-5), u"100% left"_s);
    }
};

REGISTER_TEST(AIUsageModelTest);
#include "AIUsageModelTest.moc"
