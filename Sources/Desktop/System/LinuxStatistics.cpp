#include "LinuxStatistics.h"

#include <QDir>
#include <QFile>
#include <QHash>

#include <algorithm>
#include <array>

#include <linux/magic.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongest = 5s;

/// Empty where the file cannot be read: some supplies are gone, or fail, between listing and reading.
QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

QString wordIn(const QString &path) { return QString::fromUtf8(contentOf(path).trimmed()); }

std::optional<qint64> numberIn(const QString &path)
{
    bool valid = false;
    const qint64 number = contentOf(path).trimmed().toLongLong(&valid);
    return valid ? std::optional(number) : std::nullopt;
}

/// /proc/meminfo by its names, in bytes.
QHash<QByteArray, quint64> memoryInfo(const QString &root)
{
    QHash<QByteArray, quint64> info;
    for (const QByteArray &line : contentOf(root + QLatin1String("/proc/meminfo")).split('\n')) {
        const QList<QByteArray> parts = line.simplified().split(' ');
        if (parts.size() >= 2 && parts[0].endsWith(':'))
            info.insert(parts[0].chopped(1), parts[1].toULongLong() * 1024);
    }
    return info;
}

struct Supplies
{
    QStringList batteries; ///< Their folders.
    int adapters = 0;
    bool plugged = false; ///< One of the adapters gives power.
};

Supplies suppliesBelow(const QString &folder)
{
    Supplies found;
    for (const QString &name : QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString supply = folder + u'/' + name + u'/';
        const QString type = wordIn(supply + QLatin1String("type"));
        // The battery of a mouse is none of the machine's.
        if (wordIn(supply + QLatin1String("scope")) == QLatin1String("Device"))
            continue;
        if (type == QLatin1String("Battery")) {
            found.batteries.append(supply);
        } else if (type == QLatin1String("Mains") || type == QLatin1String("USB")) {
            ++found.adapters;
            found.plugged = found.plugged || numberIn(supply + QLatin1String("online")).value_or(0) > 0;
        }
    }
    return found;
}

bool fills(const QString &battery)
{
    static const QStringList onMains{QStringLiteral("Charging"), QStringLiteral("Full"),
                                     QStringLiteral("Not charging")};
    return onMains.contains(wordIn(battery + QLatin1String("status")));
}

PowerSource describe(const QString &battery, const Supplies &supplies)
{
    PowerSource source;
    for (const auto *unit : {"charge", "energy"}) {
        const auto now = numberIn(battery + QLatin1String(unit) + QLatin1String("_now"));
        const auto full = numberIn(battery + QLatin1String(unit) + QLatin1String("_full"));
        if (!now || !full)
            continue;
        source.currentCapacity = now;
        source.maxCapacity = full;
        source.unit = *unit == 'c' ? PowerSource::Unit::charge : PowerSource::Unit::energy;
        break;
    }
    if (!source.maxCapacity) {
        source.currentCapacity = numberIn(battery + QLatin1String("capacity"));
        source.maxCapacity = 100;
    }
    if (supplies.adapters > 0 ? supplies.plugged : fills(battery))
        source.state = QString::fromLatin1(PowerSource::kMains);
    return source;
}

std::optional<QList<PowerSource>> sourcesBelow(const QString &folder)
{
    if (!QDir(folder).exists())
        return std::nullopt;
    const Supplies supplies = suppliesBelow(folder);
    QList<PowerSource> sources;
    for (const QString &battery : supplies.batteries)
        sources.append(describe(battery, supplies));
    return sources;
}

/// Whether nobody keeps files there: an image, or a file system in memory or in layers over an image. For
/// layers over a disk the user's own folder tells the same.
bool isImage(const QByteArray &folder, const struct statvfs &volume)
{
    constexpr std::array<unsigned long, 6> kImages{SQUASHFS_MAGIC,       OVERLAYFS_SUPER_MAGIC,
                                                   EROFS_SUPER_MAGIC_V1, TMPFS_MAGIC,
                                                   RAMFS_MAGIC,          ISOFS_SUPER_MAGIC};
    struct statfs kind
    {};
    if ((volume.f_flag & ST_RDONLY) != 0)
        return true;
    return statfs(folder.constData(), &kind) == 0 &&
           std::ranges::find(kImages, static_cast<unsigned long>(kind.f_type)) != kImages.end();
}

VolumeCapacity capacityOf(const QByteArray &root, const QByteArray &home)
{
    struct statvfs volume
    {};
    if (statvfs(root.constData(), &volume) != 0)
        return {};
    struct statvfs files
    {};
    if (isImage(root, volume) && statvfs(home.constData(), &files) == 0)
        volume = files;
    const auto block = static_cast<double>(volume.f_frsize);
    return {static_cast<double>(volume.f_bavail) * block, static_cast<double>(volume.f_blocks) * block};
}

} // namespace

LinuxStatistics::LinuxStatistics(const QString &root, const QString &home)
    : m_root(root)
    , m_home(home)
{}

std::optional<ProcessorTicks> LinuxStatistics::processorTicks()
{
    // user nice system idle iowait irq softirq steal; guests are part of user and nice.
    const QByteArray stat = contentOf(m_root + QLatin1String("/proc/stat"));
    const QList<QByteArray> words = stat.left(stat.indexOf('\n')).simplified().split(' ');
    if (words.size() < 5 || words[0] != "cpu")
        return std::nullopt;
    std::array<quint64, 8> counts{};
    for (std::size_t i = 0; i < counts.size() && i + 1 < static_cast<std::size_t>(words.size()); ++i)
        counts[i] = words[static_cast<qsizetype>(i) + 1].toULongLong();
    return ProcessorTicks{counts[0], counts[2] + counts[5] + counts[6] + counts[7], counts[3] + counts[4],
                          counts[1]};
}

std::optional<MemoryPages> LinuxStatistics::memoryPages()
{
    const auto info = memoryInfo(m_root);
    if (!info.contains("MemTotal") || !info.contains("AnonPages"))
        return std::nullopt;
    const quint64 internal = info["AnonPages"] + info["Shmem"];
    const quint64 compressor = info["Zswap"];
    // Cached counts shared memory too, which is no file's.
    const quint64 elsewhere = info["MemFree"] + info["Buffers"] + info["Cached"] + info["SReclaimable"] +
                              info["AnonPages"] + compressor;
    const quint64 wired = info["MemTotal"] - std::min(info["MemTotal"], elsewhere);
    const auto pageSize = static_cast<quint64>(sysconf(_SC_PAGESIZE));
    return MemoryPages{internal / pageSize, 0, wired / pageSize, compressor / pageSize, pageSize};
}

double LinuxStatistics::physicalMemory() { return static_cast<double>(memoryInfo(m_root)["MemTotal"]); }

QFuture<std::optional<QList<PowerSource>>> LinuxStatistics::powerSources()
{
    return m_supplies.run(kLongest, [folder = m_root + QLatin1String("/sys/class/power_supply")] {
        return sourcesBelow(folder);
    });
}

QFuture<VolumeCapacity> LinuxStatistics::startupVolume()
{
    const QByteArray root = m_root.isEmpty() ? QByteArray("/") : QFile::encodeName(m_root);
    return m_volumes.run(kLongest,
                         [root, home = QFile::encodeName(m_home)] { return capacityOf(root, home); });
}

} // namespace Kestrune
