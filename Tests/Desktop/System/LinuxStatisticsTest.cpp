#include "Desktop/System/LinuxStatistics.h"
#include "Support/TestRegistry.h"

#include <QProcess>
#include <QStorageInfo>

/// The kernel's own figures, and power supplies of a made-up tree.
class LinuxStatisticsTest : public QObject
{
    Q_OBJECT

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
        const auto volume = statistics.startupVolume().result();
        QVERIFY(volume.total.value_or(0) > 0 && *volume.available <= *volume.total);
    }

    void theUsersFilesCountWhereTheRootKeepsNothing()
    {
        const QString home = QCoreApplication::applicationDirPath();
        const auto totalOf = [&](const QString &root, const QString &files) {
            return LinuxStatistics(root, files).startupVolume().result().total.value_or(0);
        };
        const auto memory = static_cast<double>(QStorageInfo(u"/dev/shm"_s).bytesTotal());
        const auto disk = static_cast<double>(QStorageInfo(home).bytesTotal());
        QVERIFY(memory > 0 && disk > 0 && memory != disk);
        QCOMPARE(totalOf(u"/dev/shm"_s, u"/nowhere"_s), memory);
        QCOMPARE(totalOf(u"/dev/shm"_s, home), disk);
    }

    void powerSupplies_data()
    {
        // files: with what is in them; later ones replace earlier ones
        const auto row = columns<QString, QStringList>();
        const QString adapter = u"AC/type=Mains AC/online=1 "_s;
        const QString battery =
            u"BAT0/type=Battery BAT0/status=Discharging BAT0/energy_now=4999 BAT0/energy_full=5000 "_s;
        row("none", adapter, {});
        row("on the battery", battery, {u"4999/5000"_s});
        row("on mains", battery + adapter, {u"4999/5000 AC Power"_s});
        row("unplugged", battery + adapter + u"AC/online=0"_s, {u"4999/5000"_s});
        row("no adapter to ask", battery + u"BAT0/status=Full"_s, {u"4999/5000 AC Power"_s});
        row("a USB adapter", battery + u"ucsi/type=USB ucsi/online=1"_s, {u"4999/5000 AC Power"_s});
        row("two, and a mouse",
            battery + u"BAT1/type=Battery BAT1/charge_now=7 BAT1/charge_full=0 "
                      "hid/type=Battery hid/scope=Device hid/capacity=9"_s,
            {u"4999/5000"_s, u"7/0"_s});
        row("per cent only", "BAT0/type=Battery BAT0/capacity=42", {u"42/100"_s});
        row("unreadable", "BAT0/type=Battery BAT0/charge_now=x", {u"-/100"_s});
    }
    void powerSupplies()
    {
        const auto [files, sources] = fetched<QString, QStringList>();
        const QTemporaryDir root;
        LinuxStatistics statistics(root.path());
        QCOMPARE(statistics.powerSources().result().has_value(), false);
        for (const QString &file : files.split(u' ', Qt::SkipEmptyParts)) {
            const QString path = root.path() + u"/sys/class/power_supply/"_s + file.section(u'=', 0, 0);
            QVERIFY(writeFile(path, file.section(u'=', 1).toUtf8() + '\n'));
        }
        const auto found = statistics.powerSources().result();
        QVERIFY(found);
        const auto number = [](const std::optional<qint64> &value) {
            return value ? QString::number(*value) : u"-"_s;
        };
        const auto described = [&](const PowerSource &source) {
            return u"%1/%2 %3"_s.arg(number(source.currentCapacity), number(source.maxCapacity), source.state)
                .trimmed();
        };
        QCOMPARE(each(*found, described), sources);
    }
};

REGISTER_TEST(LinuxStatisticsTest);
#include "LinuxStatisticsTest.moc"
