#pragma once

#include "NotchKit/Platform/HostStatistics.h"

namespace Kestrune {

/// The figures that the kernel gives in /proc and /sys.
class LinuxStatistics : public HostStatistics
{
public:
    /// `root` is where /proc and /sys are found; tests give a tree of their own.
    explicit LinuxStatistics(const QString &root = QString());

    std::optional<ProcessorTicks> processorTicks() override;
    std::optional<MemoryPages> memoryPages() override;
    double physicalMemory() override;

    /// Batteries with their charge, or energy, or else per cent. They are on mains power while an adapter is
    /// plugged in; without an adapter to ask, while they say that they charge or are full.
    std::optional<QList<PowerSource>> powerSources() override;

    VolumeCapacity startupVolume() override;

private:
    QString m_root;
};

} // namespace Kestrune
