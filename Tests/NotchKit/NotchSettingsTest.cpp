#include "NotchKit/NotchSettings.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

#include <QSignalSpy>
#include <QTest>

using namespace Kestrune;

namespace {

QStringList words(const QString &text) { return text.split(QLatin1Char(' '), Qt::SkipEmptyParts); }
QString joined(const QStringList &list) { return list.join(QLatin1Char(' ')); }

const QString allTools = joined(rawValues(allCases<NotchTool>()));

} // namespace

class NotchSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstStart();
    void toolsAreLoaded_data();
    void toolsAreLoaded();
    void wrongTypesReadAsAbsent_data();
    void wrongTypesReadAsAbsent();
    void everySettingSurvivesARestart();
    void changesAreAnnouncedStoredAndNotified();
    void toolsAreSwitched();
    void homeIsArranged();
    void widgetsAreMoved_data();
    void widgetsAreMoved();
    void absentNumbersRemoveTheirKey();
    void accessByName();
};

void NotchSettingsTest::firstStart()
{
    Fakes::MemoryDefaults defaults;
    const NotchSettings settings(defaults);
    QCOMPARE(settings.openMode(), NotchOpenMode::hover);
    QCOMPARE(settings.hoverDelay(), 0.12);
    QCOMPARE(settings.tools(), allCases<NotchTool>());
    QCOMPARE(settings.homeOrder(), allCases<HomeWidget>());
    QCOMPARE(settings.tickers(), words(QStringLiteral("AAPL NVDA MSFT ^GSPC")));
    QCOMPARE(settings.homeColumns().size(), 6);
    QCOMPARE(settings.column(HomeWidget::nowPlaying), HomeColumn::center);
    QCOMPARE(settings.column(HomeWidget::note), HomeColumn::hidden);
    QVERIFY(settings.showWithoutNotch() && settings.shortcutEnabled() && settings.clipboardHistory());
    QVERIFY(!settings.allDisplays() && !settings.readCodexUsage() && !settings.weatherLatitude());
    QCOMPARE(defaults.values.keys(), QStringList{QStringLiteral("notch.knownTools")});
    QCOMPARE(joined(*defaults.value<QStringList>(QStringLiteral("notch.knownTools"))), allTools);
}

void NotchSettingsTest::toolsAreLoaded_data()
{
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("known");
    QTest::addColumn<QString>("tools");
    QTest::newRow("screenshots join an old list") << "home clipboard"
                                                  << ""
                                                  << "home clipboard captures";
    QTest::newRow("all known") << "home clipboard" << allTools << "home clipboard";
    QTest::newRow("catalogue order, unknown dropped") << "timer home sundial" << allTools << "home timer";
    QTest::newRow("new tools join") << "home"
                                    << "home timer captures nowPlaying clipboard calendar shelf aiUsage"
                                       " weather stocks teleprompter mirror"
                                    << "home note system";
    QTest::newRow("repeated") << "note note home" << allTools << "home note";
}

void NotchSettingsTest::toolsAreLoaded()
{
    QFETCH(const QString, saved);
    QFETCH(const QString, known);
    QFETCH(const QString, tools);
    Fakes::MemoryDefaults defaults;
    defaults.setObject(QStringLiteral("notch.tools"), words(saved));
    if (!known.isEmpty())
        defaults.setObject(QStringLiteral("notch.knownTools"), words(known));
    const NotchSettings settings(defaults);
    QCOMPARE(joined(rawValues(settings.tools())), tools);
    QCOMPARE(joined(*defaults.value<QStringList>(QStringLiteral("notch.knownTools"))), allTools);
    QCOMPARE(joined(*defaults.value<QStringList>(QStringLiteral("notch.tools"))), saved);
}

void NotchSettingsTest::wrongTypesReadAsAbsent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("stored");
    QTest::newRow("hoverDelay") << "hoverDelay"
                                << "0.5";
    QTest::newRow("unknown mode") << "openMode"
                                  << "Click";
    QTest::newRow("empty mode") << "openMode"
                                << "";
    QTest::newRow("Boolean") << "showWithoutNotch"
                             << "false";
    QTest::newRow("integer") << "claudeBlockBudget"
                             << "12";
    QTest::newRow("list") << "tools"
                          << "home";
    QTest::newRow("map") << "homeColumns"
                         << "left";
    QTest::newRow("optional") << "weatherLatitude"
                              << "52.5";
}

void NotchSettingsTest::wrongTypesReadAsAbsent()
{
    QFETCH(const QString, name);
    QFETCH(const QString, stored);
    Fakes::MemoryDefaults empty;
    Fakes::MemoryDefaults defaults;
    defaults.setObject(QStringLiteral("notch.") + name, stored);
    const NotchSettings settings(defaults);
    QVERIFY(NotchSettings::access(name)->stored(settings) ==
            NotchSettings::access(name)->stored(NotchSettings(empty)));
}

void NotchSettingsTest::everySettingSurvivesARestart()
{
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    settings.setOpenMode(NotchOpenMode::click);
    settings.setHoverDelay(0.4);
    settings.setTools({NotchTool::timer});
    settings.setNote(QStringLiteral("Grüße 👋\n"));
    settings.setClaudeBlockBudget(Q_INT64_C(1) << 40);
    settings.setWeatherLatitude(-33.5);
    settings.setTickers({});
    settings.setHomeOrder({HomeWidget::note, HomeWidget::greeting});
    settings.setColumn(HomeColumn::hidden, HomeWidget::weather);
    const NotchSettings restarted(defaults);
    for (const QString &name : NotchSettings::names()) {
        if (name == QLatin1String("homeOrder"))
            continue;
        const auto *access = NotchSettings::access(name);
        QVERIFY2(access->stored(settings) == access->stored(restarted), qPrintable(name));
    }
    QVERIFY(joined(rawValues(restarted.homeOrder()))
                .startsWith(QLatin1String("note greeting weather nowPlaying")));
    QCOMPARE(restarted.homeOrder().size(), 12);
    QCOMPARE(restarted.homeColumns().value(QStringLiteral("weather")), QStringLiteral("hidden"));
}

void NotchSettingsTest::changesAreAnnouncedStoredAndNotified()
{
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    QStringList log;
    connect(&settings, &NotchSettings::aboutToChange, this, [&](const QString &name) {
        log.append(QStringLiteral("before %1 %2").arg(name, settings.note()));
    });
    connect(&settings, &NotchSettings::noteChanged, this, [&] {
        log.append(QStringLiteral("after %1 %2")
                       .arg(settings.note(), *defaults.value<QString>(QStringLiteral("notch.note"))));
    });
    const QSignalSpy others(&settings, &NotchSettings::hoverDelayChanged);
    settings.setNote(QStringLiteral("a"));
    settings.setNote(QStringLiteral("a"));
    settings.setNote(QStringLiteral("b"));
    QCOMPARE(log, QStringList({QStringLiteral("before note "), QStringLiteral("after a a"),
                               QStringLiteral("before note a"), QStringLiteral("after b b")}));
    QCOMPARE(others.count(), 0);
}

void NotchSettingsTest::toolsAreSwitched()
{
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    settings.setTools({NotchTool::home, NotchTool::timer});
    const QSignalSpy changes(&settings, &NotchSettings::toolsChanged);
    settings.setEnabled(NotchTool::captures, true);
    settings.setEnabled(NotchTool::captures, true);
    QCOMPARE(settings.tools(), NotchTools({NotchTool::home, NotchTool::captures, NotchTool::timer}));
    QCOMPARE(changes.count(), 1);
    for (const NotchTool tool : allCases<NotchTool>())
        settings.setEnabled(tool, false);
    QVERIFY(settings.tools().isEmpty());
    QVERIFY(!settings.isEnabled(NotchTool::home));
}

void NotchSettingsTest::homeIsArranged()
{
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    settings.setColumn(HomeColumn::left, HomeWidget::note);
    StringMap columns = settings.homeColumns();
    columns.insert(QStringLiteral("sundial"), QStringLiteral("left"));
    columns.insert(QStringLiteral("weather"), QStringLiteral("centre"));
    settings.setHomeColumns(columns);
    QCOMPARE(settings.widgets(HomeColumn::left),
             HomeWidgets({HomeWidget::greeting, HomeWidget::aiUsage, HomeWidget::note}));
    QCOMPARE(settings.column(HomeWidget::weather), HomeColumn::hidden);
    QCOMPARE(settings.homeColumns().value(QStringLiteral("sundial")), QStringLiteral("left"));
    settings.resetHome();
    const QSignalSpy changes(&settings, &NotchSettings::homeColumnsChanged);
    settings.resetHome();
    QCOMPARE(changes.count(), 0);
    QCOMPARE(settings.column(HomeWidget::weather), HomeColumn::left);
}

void NotchSettingsTest::widgetsAreMoved_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("swapped");
    QTest::newRow("first up") << 0 << -1 << 0;
    QTest::newRow("last down") << 11 << 1 << 11;
    QTest::newRow("beyond the end") << 9 << 5 << 11;
    QTest::newRow("beyond the start") << 3 << -7 << 0;
    QTest::newRow("one up") << 4 << -1 << 3;
}

void NotchSettingsTest::widgetsAreMoved()
{
    QFETCH(const int, from);
    QFETCH(const int, offset);
    QFETCH(const int, swapped);
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    HomeWidgets expected = settings.homeOrder();
    expected.swapItemsAt(from, swapped);
    settings.move(settings.homeOrder().at(from), offset);
    QCOMPARE(settings.homeOrder(), expected);
}

void NotchSettingsTest::absentNumbersRemoveTheirKey()
{
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    settings.setWeatherLatitude(48.1);
    QVERIFY(defaults.values.contains(QStringLiteral("notch.weatherLatitude")));
    settings.setWeatherLatitude(std::nullopt);
    QVERIFY(!defaults.values.contains(QStringLiteral("notch.weatherLatitude")));
}

void NotchSettingsTest::accessByName()
{
    Fakes::MemoryDefaults defaults;
    NotchSettings settings(defaults);
    QCOMPARE(NotchSettings::names().size(), 24);
    QVERIFY(!NotchSettings::access(QStringLiteral("sundial")));
    const auto *mode = NotchSettings::access(QStringLiteral("openMode"));
    QVERIFY(!mode->assign(settings, QStringLiteral("sideways")));
    QVERIFY(mode->assign(settings, QStringLiteral("click")));
    QCOMPARE(settings.openMode(), NotchOpenMode::click);
    QVERIFY(mode->assign(settings, std::nullopt));
    QCOMPARE(settings.openMode(), NotchOpenMode::hover);
    QVERIFY(!defaults.values.contains(QStringLiteral("notch.openMode")));
    const auto *tools = NotchSettings::access(QStringLiteral("tools"));
    QVERIFY(tools->assign(settings, words(QStringLiteral("note home note"))));
    QCOMPARE(settings.tools(), NotchTools({NotchTool::home, NotchTool::note}));
    const auto *delay = NotchSettings::access(QStringLiteral("hoverDelay"));
    QVERIFY(delay->assign(settings, qint64(1)));
    QCOMPARE(settings.hoverDelay(), 1.0);
}

REGISTER_TEST(NotchSettingsTest);
#include "NotchSettingsTest.moc"
