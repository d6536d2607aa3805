#pragma once

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

/// A battery or another supply of power. Units are the supply's own, the same for both amounts.
struct PowerSource
{
    std::optional<qint64> currentCapacity;
    std::optional<qint64> maxCapacity;
    QString state; ///< kMains, or anything else.

    static constexpr auto kMains = "AC Power";
};

/// Bytes of the volume that the system starts from; nothing where it cannot be told.
struct VolumeCapacity
{
    std::optional<double> available; ///< To ordinary users.
    std::optional<double> total;
};

/// Figures of the machine. Main thread only; each costs a few microseconds, and is nothing where it cannot be
/// read.
class HostStatistics
{
public:
    virtual ~HostStatistics() = default;

    virtual std::optional<ProcessorTicks> processorTicks() = 0;
    virtual std::optional<MemoryPages> memoryPages() = 0;

    /// Installed memory in bytes; 0 where it cannot be read.
    virtual double physicalMemory() = 0;

    /// The supplies that feed the machine itself, in their names' order.
    virtual std::optional<QList<PowerSource>> powerSources() = 0;

    virtual VolumeCapacity startupVolume() = 0;
};

} // namespace Kestrune
