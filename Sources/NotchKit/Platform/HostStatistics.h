#pragma once

#include <QFuture>
#include <QList>
#include <QString>

#include <optional>

namespace Kestrune {

/// What the processors have done since the machine started, in ticks of all of them together.
struct ProcessorTicks
{
    quint64 user = 0;
    quint64 system = 0; ///< In the kernel, its interrupts, and taken by a hypervisor for others.
    quint64 idle = 0;   ///< Nothing to do, or waiting for a disk.
    quint64 nice = 0;

    bool operator==(const ProcessorTicks &) const = default;
};

/// Pages of memory by what they hold. In use is internal - purgeable + wired + compressor: whatever cannot
/// be had back by dropping it. Free pages, buffers, cached files and the kernel's reclaimable caches are in
/// none of the four.
///
/// The kernel's /proc/meminfo (see proc(5)) stands for them so: internal is AnonPages + Shmem, the memory
/// of programs that no file backs; purgeable is 0, since the kernel counts no page that a program offered
/// back; compressor is Zswap, the memory that compressed pages take; wired is the rest of what is neither
/// free nor backed by files, which the kernel itself and its drivers hold. The four add up to
/// MemTotal - MemFree - Buffers - (Cached - Shmem) - SReclaimable.
struct MemoryPages
{
    quint64 internal = 0;
    quint64 purgeable = 0;
    quint64 wired = 0;
    quint64 compressor = 0;
    quint64 pageSize = 4096; ///< Bytes.

    bool operator==(const MemoryPages &) const = default;
};

/// A battery or another supply of power.
struct PowerSource
{
    /// What both amounts are counted in: charge (µAh), energy (µWh) or per cent of its own.
    enum class Unit { charge, energy, percent };

    std::optional<qint64> currentCapacity;
    std::optional<qint64> maxCapacity;
    QString state; ///< kMains, or anything else.
    Unit unit = Unit::percent;

    static constexpr auto kMains = "AC Power";
};

/// Bytes of a volume; nothing where it cannot be told.
struct VolumeCapacity
{
    std::optional<double> available; ///< To ordinary users.
    std::optional<double> total;
};

/// Figures of the machine. Main thread only. What is answered at once costs a few microseconds; supplies and
/// volumes can take their time, and are read elsewhere. Each is nothing where it cannot be read.
class HostStatistics
{
public:
    virtual ~HostStatistics() = default;

    virtual std::optional<ProcessorTicks> processorTicks() = 0;
    virtual std::optional<MemoryPages> memoryPages() = 0;

    /// Installed memory in bytes; 0 where it cannot be read.
    virtual double physicalMemory() = 0;

    /// The supplies that feed the machine itself, in their names' order.
    virtual QFuture<std::optional<QList<PowerSource>>> powerSources() = 0;

    /// The volume that the system starts from; where that is an image that nobody writes to, the one that
    /// holds the user's files.
    virtual QFuture<VolumeCapacity> startupVolume() = 0;
};

} // namespace Kestrune
