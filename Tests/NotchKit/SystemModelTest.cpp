#include "NotchKit/Tools/System/SystemModel.h"
#include "NotchKit/Tools/System/SystemPresentation.h"
#include "Support/Core.h"

constexpr double kGigabyte = 1024.0 * 1024 * 1024;

static PowerSource source(std::optional<qint64> now, std::optional<qint64> full, const QString &state = {},
                          PowerSource::Unit unit = PowerSource::Unit::energy)
{
    return {now, full, state, unit};
}

/// Reads, and waits for what is read elsewhere.
static void refresh(SystemModel &system)
{
    system.refresh();
    Fakes::finishWork();
}

class SystemModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadIsThatOfTheInterval()
    {
        Fakes::Core core;
        SystemModel &system = *core.services.model<SystemModel>();
        const auto load = [&](std::optional<ProcessorTicks> ticks) {
            core.host.ticks = ticks;
            system.refresh();
            return system.cpu();
        };
        QCOMPARE(load(ProcessorTicks{100, 50, 800, 50}), 0.0);
        QCOMPARE(load(ProcessorTicks{120, 60, 860, 60}), 0.4);
        QCOMPARE(load(ProcessorTicks{120, 60, 860, 60}), 0.4);
        QCOMPARE(load(std::nullopt), 0.4);
        QCOMPARE(load(ProcessorTicks{90, 60, 890, 60}), 0.4);  // went back
        QCOMPARE(load(ProcessorTicks{80, 60, 1000, 60}), 0.0); // less work than before
        QCOMPARE(load(ProcessorTicks{180, 60, 1000, 60}), 1.0);
    }

    void batteries_data()
    {
        // percent: -1: none
        columns<QList<PowerSource>, int, bool>();
        const QString mains = QString::fromLatin1(PowerSource::kMains);
        QTest::newRow("none") << QList<PowerSource>() << -1 << false;
        QTest::newRow("almost full") << QList{source(4999, 5000)} << 100 << false;
        QTest::newRow("a quarter") << QList{source(1234, 5000, mains)} << 25 << true;
        QTest::newRow("half rounds up") << QList{source(5, 1000, u"Battery Power"_s)} << 1 << false;
        QTest::newRow("two of a size") << QList{source(30, 100, mains), source(70, 100)} << 50 << true;
        QTest::newRow("a large and a small one")
            << QList{source(80, 100), source(20, 300, mains)} << 25 << true;
        const auto charge = source(1, 10, {}, PowerSource::Unit::charge);
        QTest::newRow("of two kinds") << QList{source(900, 1000), charge} << 50 << false;
        const auto percent = source(10, 100, {}, PowerSource::Unit::percent);
        QTest::newRow("per cent only")
            << QList{percent, source(1, 2, {}, PowerSource::Unit::percent)} << 30 << false;
        QTest::newRow("maximum 0") << QList{source(50, 0, mains), source(70, 100)} << 70 << false;
        QTest::newRow("lacking one") << QList{source({}, 100), source(50, {}), source(3, 4)} << 75 << false;
    }
    void batteries()
    {
        const auto [sources, percent, charging] = fetched<QList<PowerSource>, int, bool>();
        Fakes::Core core;
        SystemModel &system = *core.services.model<SystemModel>();
        core.host.supplies = sources;
        refresh(system);
        QCOMPARE(system.battery().value_or(-1), percent);
        QCOMPARE(system.charging(), charging);
        const auto lines = SystemPresentation::describe(system, QLocale::c());
        QCOMPARE(lines.size(), percent < 0 ? 3 : 4);
        if (percent >= 0)
            QCOMPARE(lines[3].symbol, charging ? u"battery.100.bolt"_s : u"battery.75"_s);
        core.host.supplies.reset();
        refresh(system);
        QCOMPARE(system.battery().value_or(-1), percent);
    }

    void rowsSayWhatWasRead()
    {
        Fakes::Core core;
        SystemModel &system = *core.services.model<SystemModel>();
        SystemPresentation rows;
        rows.setModel(&system);
        QCOMPARE(rows.lines()[2].fraction, 0.0); // Nothing is known of the disk yet.
        core.host.pages = MemoryPages{1000, 200, 300, 100, 1024 * 1024};
        core.host.volume = {30 * kGigabyte, 120 * kGigabyte};
        core.host.supplies = {source(50, 100, QString::fromLatin1(PowerSource::kMains))};
        refresh(system);
        QCOMPARE(rows.lines()[0].value, u"0%"_s);
        QCOMPARE(rows.lines()[1].value, u"1.2 GB / 16.0 GB"_s);
        QCOMPARE(rows.lines()[2].value, u"30.0 GB free"_s);
        QCOMPARE(rows.lines()[2].fraction, 0.75);
        QCOMPARE(rows.lines()[3].value, u"50% · charging"_s);
        QCOMPARE(SystemPresentation::describe(system, QLocale(QLocale::German))[2].value, u"30,0 GB free"_s);
        QSignalSpy changes(&rows, &SystemPresentation::linesChanged);
        QSignalSpy figures(&system, &SystemModel::changed);
        refresh(system);
        QVERIFY(changes.isEmpty() && figures.isEmpty());
        core.host.pages.reset();
        core.host.volume = {};
        refresh(system);
        QCOMPARE(system.memoryUsed(), 1200.0 * 1024 * 1024);
        QCOMPARE(system.diskTotal(), 0.0);
    }

    void nothingIsReadUnseen()
    {
        Fakes::StartedCore core;
        core.settings.setColumn(HomeColumn::hidden, HomeWidget::system);
        const auto asked = [&](int milliseconds) {
            core.wait(milliseconds);
            return core.host.asked;
        };
        core.wait(5000);
        core.controller.open(NotchTool::home);
        QCOMPARE(asked(5000), 0);
        core.controller.open(NotchTool::system);
        QCOMPARE(core.host.asked, 1);
        QCOMPARE(asked(3000), 4);
        core.settings.setColumn(HomeColumn::left, HomeWidget::system);
        core.controller.open(NotchTool::home);
        QCOMPARE(asked(1000), 6);
        core.controller.collapseAll();
        QCOMPARE(asked(5000), 6);
    }
};

REGISTER_TEST(SystemModelTest);
#include "SystemModelTest.moc"
