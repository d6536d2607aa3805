#pragma once

#include "NotchKit/Platform/SystemSleep.h"

#include <QDBusConnection>

namespace Kestrune {

/// The machine's sleep as logind tells of it, or what answers to its name.
class LogindSleep : public SystemSleep
{
    Q_OBJECT

public:
    /// `system` is the bus of logind.
    explicit LogindSleep(const QDBusConnection &system);

private Q_SLOTS:
    void prepareForSleep(bool starts);

private:
    QDBusConnection m_system;
};

} // namespace Kestrune
