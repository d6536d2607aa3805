#include "SystemModel.h"

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

bool isUsable(const PowerSource &source)
{
    return source.currentCapacity && source.maxCapacity && *source.maxCapacity >= 1;
}

} // namespace

SystemModel::SystemModel(NotchSettings &settings, HostStatistics &host, QObject *parent)
    : ToolModel(NotchTool::system, parent)
    , m_settings(settings)
    , m_host(host)
    , m_memoryTotal(host.physicalMemory())
{}

void SystemModel::refresh()
{
    readCPU();
    readMemory();
    readBattery();
    readDisk();
}

void SystemModel::readCPU()
{
    const auto ticks = m_host.processorTicks();
    if (!ticks)
        return;
    const quint64 busy = ticks->user + ticks->system + ticks->nice;
    const Ticks now{busy, busy + ticks->idle};
    if (m_lastTicks && now.total > m_lastTicks->total) {
        // A processor that was switched off takes its share of the counters along.
        const double spent = static_cast<double>(now.busy) - static_cast<double>(m_lastTicks->busy);
        m_cpu = std::clamp(spent / static_cast<double>(now.total - m_lastTicks->total), 0.0, 1.0);
    }
    m_lastTicks = now;
}

void SystemModel::readMemory()
{
    const auto pages = m_host.memoryPages();
    if (!pages)
        return;
    const double used = static_cast<double>(pages->internal) - static_cast<double>(pages->purgeable) +
                        static_cast<double>(pages->wired) + static_cast<double>(pages->compressor);
    m_memoryUsed = used * static_cast<double>(pages->pageSize);
}

void SystemModel::readBattery()
{
    const auto sources = m_host.powerSources();
    if (!sources)
        return;
    const auto source = std::ranges::find_if(*sources, isUsable);
    if (source == sources->end())
        return;
    const double charge =
        static_cast<double>(*source->currentCapacity) / static_cast<double>(*source->maxCapacity);
    m_battery = static_cast<int>(std::lround(charge * 100));
    m_charging = source->state == QLatin1String(PowerSource::kMains);
}

void SystemModel::readDisk()
{
    const VolumeCapacity volume = m_host.startupVolume();
    m_diskFree = volume.available.value_or(0);
    m_diskTotal = volume.total.value_or(0);
}

bool SystemModel::isShown(std::optional<NotchTool> visible) const
{
    return visible == NotchTool::system ||
           (visible == NotchTool::home && m_settings.column(HomeWidget::system) != HomeColumn::hidden);
}

void SystemModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (isShown(visible))
        refresh();
}

void SystemModel::tick(const ClockTick &tick)
{
    if (tick.anyExpanded && isShown(tick.visibleTool))
        refresh();
}

} // namespace Kestrune
