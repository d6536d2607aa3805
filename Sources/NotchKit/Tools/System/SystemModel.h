#pragma once

#include "Async/Scope.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/HostStatistics.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>

namespace Kestrune {

/// Processor load, memory, battery and disk, read each second while they are on screen. Amounts are bytes.
/// Main thread only.
class SystemModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(double cpu READ cpu NOTIFY changed)
    Q_PROPERTY(double memoryUsed READ memoryUsed NOTIFY changed)
    Q_PROPERTY(double memoryTotal READ memoryTotal CONSTANT)
    Q_PROPERTY(bool charging READ charging NOTIFY changed)
    Q_PROPERTY(double diskFree READ diskFree NOTIFY changed)
    Q_PROPERTY(double diskTotal READ diskTotal NOTIFY changed)

public:
    SystemModel(NotchSettings &settings, HostStatistics &host, QObject *parent = nullptr);

    /// A fraction from 0 to 1 over the time between the last two readings; 0 until there are two.
    double cpu() const { return m_cpu; }
    double memoryUsed() const { return m_memoryUsed; }
    double memoryTotal() const { return m_memoryTotal; }

    /// Per cent of what all batteries hold together; nothing without a battery.
    std::optional<int> battery() const { return m_battery; }

    /// On mains power, as one of the batteries' sources tells.
    bool charging() const { return m_charging; }
    double diskFree() const { return m_diskFree; }
    double diskTotal() const { return m_diskTotal; }

    /// Reads all four, battery and disk a little later. What cannot be read stays as it was.
    void refresh();

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void changed();

private:
    /// Cumulative.
    struct Ticks
    {
        quint64 busy = 0;
        quint64 total = 0;
    };

    bool isShown(std::optional<NotchTool> visible) const;
    void readCPU();
    void readMemory();
    QCoro::Task<> readBattery();
    QCoro::Task<> readDisk();

    NotchSettings &m_settings;
    HostStatistics &m_host;
    const double m_memoryTotal;
    std::optional<Ticks> m_lastTicks;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SystemModel, double, m_cpu, 0, &SystemModel::changed)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SystemModel, double, m_memoryUsed, 0, &SystemModel::changed)
    Q_OBJECT_BINDABLE_PROPERTY(SystemModel, std::optional<int>, m_battery, &SystemModel::changed)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SystemModel, bool, m_charging, false, &SystemModel::changed)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SystemModel, double, m_diskFree, 0, &SystemModel::changed)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SystemModel, double, m_diskTotal, 0, &SystemModel::changed)
    Scope m_batteryReading; ///< Two, so that a disk that hangs does not hold the battery up.
    Scope m_diskReading;
};

} // namespace Kestrune
