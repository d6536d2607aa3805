#include "SystemModel.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Kestrune {

namespace {

bool isUsable(const PowerSource &source)
{
    return source.currentCapacity && source.maxCapacity && *source.maxCapacity >= 1;
}

double chargeOf(const PowerSource &source)
{
    return static_cast<double>(*source.currentCapacity) / static_cast<double>(*source.maxCapacity);
}

/// From 0 to 1. Amounts of one kind are added up, so that a large battery counts for more; otherwise the mean
/// is the best that can be told.
double chargeOf(const QList<PowerSource> &sources)
{
    PowerSource sum{0, 0, {}, sources.constFirst().unit};
    double charges = 0;
    bool canBeAdded = sum.unit != PowerSource::Unit::percent;
    for (const PowerSource &source : sources) {
        canBeAdded = canBeAdded && source.unit == sum.unit;
        *sum.currentCapacity += *source.currentCapacity;
        *sum.maxCapacity += *source.maxCapacity;
        charges += chargeOf(source);
    }
    return canBeAdded ? chargeOf(sum) : charges / static_cast<double>(sources.size());
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
    if (!m_batteryReading.isWaiting())
        m_batteryReading.start(&SystemModel::readBattery, this);
    if (!m_diskReading.isWaiting())
        m_diskReading.start(&SystemModel::readDisk, this);
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

QCoro::Task<> SystemModel::readBattery()
{
    const auto asked = m_host.powerSources();
    const auto sources = co_await until(asked);
    QList<PowerSource> usable;
    if (sources)
        std::ranges::copy_if(*sources, std::back_inserter(usable), isUsable);
    if (usable.isEmpty())
        co_return;
    m_battery = static_cast<int>(std::lround(chargeOf(usable) * 100));
    m_charging = std::ranges::any_of(
        usable, [](const auto &source) { return source.state == QLatin1String(PowerSource::kMains); });
}

QCoro::Task<> SystemModel::readDisk()
{
    const auto asked = m_host.startupVolume();
    const VolumeCapacity volume = co_await until(asked);
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
