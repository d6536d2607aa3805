#include "NotchKit/NotchSettings.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

static QStringList words(const QString &text) { return text.split(u' ', Qt::SkipEmptyParts); }
static QString joined(const QStringList &list) { return list.join(u' '); }

static const QString allTools = joined(rawValues(allCases<NotchTool>()));

class NotchSettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAreNamed_data()
    {
        columns<QString, QString, QString, int>();
        QTest::newRow("a letter") << u"ctrl+alt + super+n"_s << u"Ctrl+Alt+Super+N"_s << u"CTRL+ALT+LOGO+n"_s
                                  << int((Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier).toInt() |
                                         Qt::Key_N);
        QTest::newRow("a digit") << u"Shift+Super+0"_s << u"Shift+Super+0"_s << u"SHIFT+LOGO+0"_s
                                 << int((Qt::ShiftModifier | Qt::MetaModifier).toInt() | Qt::Key_0);
        QTest::newRow("Space") << u"ALT+space"_s << u"Alt+Space"_s << u"ALT+space"_s
                               << int(int(Qt::AltModifier) | Qt::Key_Space);
        QTest::newRow("a function key alone") << u"F11"_s << u"F11"_s << u"F11"_s << int(Qt::Key_F11);
        for (const char *words :
             {"", "n", "Shift+N", "Ctrl", "Ctrl+", "Ctrl+Ä", "Hyper+N", "Ctrl+F13", "Ctrl+NN"})
            QTest::newRow(words) << QString::fromUtf8(words) << QString() << QString() << 0;
    }

    void keysAreNamed()
    {
        const auto [words, normal, trigger, qtKey] = fetched<QString, QString, QString, int>();
        const auto keys = Kestrune::KeyCombination::parse(words);
        QCOMPARE(keys.has_value(), !normal.isEmpty());
        QCOMPARE(keys ? keys->words() : QString(), normal);
        QCOMPARE(keys ? keys->trigger() : QString(), trigger);
        QCOMPARE(keys ? keys->qtKey() : 0, qtKey);
        if (keys)
            QCOMPARE(Kestrune::KeyCombination::ofPress(qtKey & ~Qt::KeyboardModifierMask, qtKey), keys);
    }

    void firstStart()
    {
        Fakes::MemoryDefaults defaults;
        const NotchSettings settings(defaults);
        QCOMPARE(settings.openMode(), NotchOpenMode::hover);
        QCOMPARE(settings.hoverDelay(), 0.12);
        QCOMPARE(settings.tools(), allCases<NotchTool>());
        QCOMPARE(settings.homeOrder(), allCases<HomeWidget>());
        QCOMPARE(settings.tickers(), words(u"AAPL NVDA MSFT ^GSPC"_s));
        QCOMPARE(settings.homeColumns().size(), 6);
        QCOMPARE(settings.column(HomeWidget::nowPlaying), HomeColumn::center);
        QCOMPARE(settings.column(HomeWidget::note), HomeColumn::hidden);
        QVERIFY(settings.showWithoutNotch() && settings.shortcutEnabled() && settings.clipboardHistory());
        QVERIFY(!settings.allDisplays() && !settings.readCodexUsage() && !settings.weatherLatitude());
        QCOMPARE(defaults.values.keys(), QStringList{u"notch.knownTools"_s});
        QCOMPARE(joined(*defaults.value<QStringList>(u"notch.knownTools"_s)), allTools);
    }

    void toolsAreLoaded_data()
    {
        const auto row = columns<QString, QString, QString>();
        row("screenshots join an old list", "home clipboard", "", "home clipboard captures");
        row("all known", "home clipboard", allTools, "home clipboard");
        row("catalogue order, unknown dropped", "timer home sundial", allTools, "home timer");
        row("new tools join", "home",
            "home timer captures nowPlaying clipboard calendar shelf aiUsage"
            " weather stocks teleprompter mirror",
            "home note system");
        row("repeated", "note note home", allTools, "home note");
    }

    void toolsAreLoaded()
    {
        const auto [saved, known, tools] = fetched<QString, QString, QString>();
        Fakes::MemoryDefaults defaults;
        defaults.setObject(u"notch.tools"_s, words(saved));
        if (!known.isEmpty())
            defaults.setObject(u"notch.knownTools"_s, words(known));
        const NotchSettings settings(defaults);
        QCOMPARE(joined(rawValues(settings.tools())), tools);
        QCOMPARE(joined(*defaults.value<QStringList>(u"notch.knownTools"_s)), allTools);
        QCOMPARE(joined(*defaults.value<QStringList>(u"notch.tools"_s)), saved);
    }

    void wrongTypesReadAsAbsent_data()
    {
        const auto row = columns<QString, QString>();
        row("hoverDelay", "hoverDelay", "0.5");
        row("unknown mode", "openMode", "Click");
        row("empty mode", "openMode", "");
        row("Boolean", "showWithoutNotch", "false");
        row("integer", "claudeBlockBudget", "12");
        row("list", "tools", "home");
        row("map", "homeColumns", "left");
        row("optional", "weatherLatitude", "52.5");
    }

    void wrongTypesReadAsAbsent()
    {
        const auto [name, stored] = fetched<QString, QString>();
        Fakes::MemoryDefaults empty;
        Fakes::MemoryDefaults defaults;
        defaults.setObject(u"notch."_s + name, stored);
        const NotchSettings settings(defaults);
        QVERIFY(NotchSettings::access(name)->stored(settings) ==
                NotchSettings::access(name)->stored(NotchSettings(empty)));
    }

    void everySettingSurvivesARestart()
    {
        Fakes::MemoryDefaults defaults;
        NotchSettings settings(defaults);
        settings.setOpenMode(NotchOpenMode::click);
        settings.setHoverDelay(0.4);
        settings.setTools({NotchTool::timer});
        settings.setNote(u"Grüße 👋\n"_s);
        settings.setClaudeBlockBudget(Q_INT64_C(1) << 40);
        settings.setWeatherLatitude(-33.5);
        settings.setTickers({});
        settings.setHomeOrder({HomeWidget::note, HomeWidget::greeting});
        settings.setColumn(HomeColumn::hidden, HomeWidget::weather);
        const NotchSettings restarted(defaults);
        for (const QString &name : NotchSettings::names()) {
            if (name == "homeOrder"_L1)
                continue;
            const auto *access = NotchSettings::access(name);
            QVERIFY2(access->stored(settings) == access->stored(restarted), qPrintable(name));
        }
        QVERIFY(joined(rawValues(restarted.homeOrder())).startsWith("note greeting weather nowPlaying"_L1));
        QCOMPARE(restarted.homeOrder().size(), 12);
        QCOMPARE(restarted.homeColumns().value(u"weather"_s), u"hidden"_s);
    }

    void changesAreAnnouncedStoredAndNotified()
    {
        Fakes::MemoryDefaults defaults;
        NotchSettings settings(defaults);
        QStringList log;
        connect(&settings, &NotchSettings::aboutToChange, this,
                [&](const QString &name) { log.append(u"before %1 %2"_s.arg(name, settings.note())); });
        connect(&settings, &NotchSettings::noteChanged, this, [&] {
            log.append(u"after %1 %2"_s.arg(settings.note(), *defaults.value<QString>(u"notch.note"_s)));
        });
        const QSignalSpy others(&settings, &NotchSettings::hoverDelayChanged);
        settings.setNote(u"a"_s);
        settings.setNote(u"a"_s);
        settings.setNote(u"b"_s);
        QCOMPARE(log, QStringList({u"before note "_s, u"after a a"_s, u"before note a"_s, u"after b b"_s}));
        QCOMPARE(others.count(), 0);
    }

    void toolsAreSwitched()
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
        QVERIFY(settings.tools().isEmpty() && !settings.isEnabled(NotchTool::home));
    }

    void homeIsArranged()
    {
        Fakes::MemoryDefaults defaults;
        NotchSettings settings(defaults);
        settings.setColumn(HomeColumn::left, HomeWidget::note);
        StringMap columns = settings.homeColumns();
        columns.insert(u"sundial"_s, u"left"_s);
        columns.insert(u"weather"_s, u"centre"_s);
        settings.setHomeColumns(columns);
        QCOMPARE(settings.widgets(HomeColumn::left),
                 HomeWidgets({HomeWidget::greeting, HomeWidget::aiUsage, HomeWidget::note}));
        QCOMPARE(settings.column(HomeWidget::weather), HomeColumn::hidden);
        QCOMPARE(settings.homeColumns().value(u"sundial"_s), u"left"_s);
        settings.resetHome();
        const QSignalSpy changes(&settings, &NotchSettings::homeColumnsChanged);
        settings.resetHome();
        QCOMPARE(changes.count(), 0);
        QCOMPARE(settings.column(HomeWidget::weather), HomeColumn::left);
    }

    void widgetsAreMoved_data()
    {
        columns<int, int, int>();
        QTest::newRow("first up") << 0 << -1 << 0;
        QTest::newRow("last down") << 11 << 1 << 11;
        QTest::newRow("beyond the end") << 9 << 5 << 11;
        QTest::newRow("beyond the start") << 3 << -7 << 0;
        QTest::newRow("one up") << 4 << -1 << 3;
    }

    void widgetsAreMoved()
    {
        const auto [from, offset, swapped] = fetched<int, int, int>();
        Fakes::MemoryDefaults defaults;
        NotchSettings settings(defaults);
        HomeWidgets expected = settings.homeOrder();
        expected.swapItemsAt(from, swapped);
        settings.move(settings.homeOrder().at(from), offset);
        QCOMPARE(settings.homeOrder(), expected);
    }

    void accessByName()
    {
        Fakes::MemoryDefaults defaults;
        NotchSettings settings(defaults);
        QCOMPARE(NotchSettings::names().size(), 32);
        QVERIFY(!NotchSettings::access(u"sundial"_s));
        const auto *mode = NotchSettings::access(u"openMode"_s);
        QVERIFY(!mode->assign(settings, u"sideways"_s) && mode->assign(settings, u"click"_s));
        QCOMPARE(settings.openMode(), NotchOpenMode::click);
        QVERIFY(mode->assign(settings, std::nullopt));
        QCOMPARE(settings.openMode(), NotchOpenMode::hover);
        QVERIFY(!defaults.values.contains(u"notch.openMode"_s));
        settings.setWeatherLatitude(48.1);
        QVERIFY(defaults.values.contains(u"notch.weatherLatitude"_s));
        settings.setWeatherLatitude(std::nullopt);
        QVERIFY(!defaults.values.contains(u"notch.weatherLatitude"_s));
        const auto *tools = NotchSettings::access(u"tools"_s);
        QVERIFY(tools->assign(settings, words(u"note home note"_s)));
        QCOMPARE(settings.tools(), NotchTools({NotchTool::home, NotchTool::note}));
        const auto *delay = NotchSettings::access(u"hoverDelay"_s);
        QVERIFY(delay->assign(settings, qint64(1)));
        QCOMPARE(settings.hoverDelay(), 1.0);
    }
};

REGISTER_TEST(NotchSettingsTest);
#include "NotchSettingsTest.moc"
