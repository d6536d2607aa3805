#pragma once

#include "Async/Worker.h"
#include "NotchKit/Platform/HostStatistics.h"

#include <QDir>

namespace Kestrune {

/// The figures that the kernel gives in /proc and /sys.
class LinuxStatistics : public HostStatistics
{
public:
    /// `root` is where /proc and /sys are found; tests give a tree of their own. `home` holds the user's
    /// files.
    explicit LinuxStatistics(const QString &root = QString(), const QString &home = QDir::homePath());

    std::optional<ProcessorTicks> processorTicks() override;
    std::optional<MemoryPages> memoryPages() override;
    double physicalMemory() override;

    /// Batteries with their charge, or energy, or else per cent. They are on mains power while an adapter is
    /// plugged in; without an adapter to ask, while they say that they charge or are full.
    QFuture<std::optional<QList<PowerSource>>> powerSources() override;

    /// The volume of `root`; that of `home` where `root` is read-only, or of a kind that keeps nothing.
    QFuture<VolumeCapacity> startupVolume() override;

private:
    QString m_root;
    QString m_home;
    Worker m_supplies{"supplies"}; ///< A battery's controller can take a second to answer,
    Worker m_volumes{"volumes"};   ///< and a server that holds the user's files forever.
};

} // namespace Kestrune
