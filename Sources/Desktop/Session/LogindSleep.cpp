#include "LogindSleep.h"

#include "Log.h"

namespace Kestrune {

LogindSleep::LogindSleep(const QDBusConnection &system)
    : m_system(system)
{
    if (m_system.isConnected())
        m_system.connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                         QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"),
                         this, SLOT(prepareForSleep(bool)));
}

void LogindSleep::prepareForSleep(bool starts)
{
    if (starts)
        return;
    qCInfo(sessionLog, "the machine has slept");
    Q_EMIT woke();
}

} // namespace Kestrune
