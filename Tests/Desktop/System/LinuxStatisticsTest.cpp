#include "Desktop/System/LinuxStatistics.h"
#include "Support/TestRegistry.h"

#include <QProcess>

/// The kernel's own figures, and power supplies of a made-up tree.
class LinuxStatisticsTest : public QObject
{
    Q_OBJECT

    using Files = QMap<QString, QString>;

private Q_SLOTS:
    void figuresAgreeWithAnotherProgram()
    {
        // Two readings of the same file, moments apart, on a machine that goes on working.
        const auto other = [](const QString &script) {
            QProcess awk;
            awk.start(u"awk"_s, {script, u"/proc/stat"_s, u"/proc/meminfo"_s});
            awk.waitForFinished();
            return awk.readAllStandardOutput().trimmed().toDouble();
        };
        const QString idle = u"/^cpu /{print $5+$6}"_s;
        const QString all = u"/^cpu /{print $2+$3+$4+$5+$6+$7+$8+$9}"_s;
        LinuxStatistics statistics;
        const auto load = [](double idleTicks, double allTicks) { return 1 - idleTicks / allTicks; };
        const auto total = [](const ProcessorTicks &ticks) {
            return static_cast<double>(ticks.user + ticks.system + ticks.idle + ticks.nice);
        };
        double own = 0;
        // How far apart the two are; what happens between the readings counts for one of them only.
        const auto difference = [&] {
            const auto before = statistics.processorTicks();
            const double idleBefore = other(idle);
            const double allBefore = other(all);
            QTest::qWait(1500);
            const auto after = statistics.processorTicks();
            const double idleAfter = other(idle);
            const double allAfter = other(all);
            if (!before || !after)
                return 1.0;
            own = load(static_cast<double>(after->idle - before->idle), total(*after) - total(*before));
            return std::abs(own - load(idleAfter - idleBefore, allAfter - allBefore));
        };
        QTRY_VERIFY2(difference() < 0.1, qPrintable(QString::number(own)));

        const auto pages = statistics.memoryPages();
        const double used = other(u"/^MemTotal/{s+=$2} /^(MemFree|Buffers|Cached|SReclaimable):/{s-=$2} "
                                  "/^Shmem:/{s+=$2} END{printf \"%.0f\", s*1024}"_s);
        QVERIFY(pages);
        const double sum =
            static_cast<double>((pages->internal + pages->wired + pages->compressor) * pages->pageSize);
        QVERIFY2(std::abs(sum - used) < 0.02 * statistics.physicalMemory(),
                 qPrintable(QString::number(sum - used)));
        QCOMPARE(statistics.physicalMemory(), other(u"/^MemTotal/{printf \"%.0f\", $2*1024}"_s));
        const auto volume = statistics.startupVolume();
        QVERIFY(volume.total.value_or(0) > 0 && *volume.available <= *volume.total);
    }

    void powerSupplies_data()
    {
        const auto row = columns<Files, QStringList>();
        const Files adapter{{u"AC/type"_s, u"Mains"_s}, {u"AC/online"_s, u"1"_s}};
        const Files battery{{u"BAT0/type"_s, u"Battery"_s},
                            {u"BAT0/status"_s, u"Discharging"_s},
                            {u"BAT0/energy_now"_s, u"4999"_s},
                            {u"BAT0/energy_full"_s, u"5000"_s}};
        const auto with = [](Files files, const Files &more) { return files.insert(more), files; };
        row("none", adapter, QStringList());
        row("on the battery", battery, QStringList{u"4999/5000"_s});
        row("on mains", with(battery, adapter), QStringList{u"4999/5000 AC Power"_s});
        row("unplugged", with(with(battery, adapter), {{u"AC/online"_s, u"0"_s}}),
            QStringList{u"4999/5000"_s});
        row("no adapter to ask", with(battery, {{u"BAT0/status"_s, u"Full"_s}}),
            QStringList{u"4999/5000 AC Power"_s});
        row("a USB adapter", with(battery, {{u"ucsi/type"_s, u"USB"_s}, {u"ucsi/online"_s, u"1"_s}}),
            QStringList{u"4999/5000 AC Power"_s});
        row("two, and a mouse",
            with(battery, {{u"BAT1/type"_s, u"Battery"_s},
                           {u"BAT1/charge_now"_s, u"7"_s},
                           {u"BAT1/charge_full"_s, u"0"_s},
                           {u"hid/type"_s, u"Battery"_s},
                           {u"hid/scope"_s, u"Device"_s},
                           {u"hid/capacity"_s, u"9"_s}}),
            QStringList{u"4999/5000"_s, u"7/0"_s});
        row("per cent only", Files{{u"BAT0/type"_s, u"Battery"_s}, {u"BAT0/capacity"_s, u"42"_s}},
            QStringList{u"42/100"_s});
        row("unreadable", Files{{u"BAT0/type"_s, u"Battery"_s}, {u"BAT0/charge_now"_s, u"x"_s}},
            QStringList{u"-/100"_s});
    }
    void powerSupplies()
    {
        const auto [files, sources] = fetched<Files, QStringList>();
        const QTemporaryDir root;
        QCOMPARE(LinuxStatistics(root.path()).powerSources().has_value(), false);
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            const QString path = root.path() + u"/sys/class/power_supply/"_s + file.key();
            QVERIFY(writeFile(path, file.value().toUtf8() + '\n'));
        }
        const auto found = LinuxStatistics(root.path()).powerSources();
        QVERIFY(found);
        QStringList described;
        const auto number = [](const std::optional<qint64> &value) {
            return value ? QString::number(*value) : u"-"_s;
        };
        for (const PowerSource &source : *found)
            described.append(
                (number(source.currentCapacity) + u'/' + number(source.maxCapacity) + u' ' + source.state)
                    .trimmed());
        QCOMPARE(described, sources);
    }
};

REGISTER_TEST(LinuxStatisticsTest);
#include "LinuxStatisticsTest.moc"
