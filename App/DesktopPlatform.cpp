#include "DesktopPlatform.h"

#include "LocalServices.h"
#include "NotchKit/NotchBranding.h"
#include "StandardSettings.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace Kestrune {

DesktopPlatform::DesktopPlatform(const QDBusConnection &bus, const WindowSystemChoice &windows)
    : m_identity(bus)
    , m_defaults(SqliteUserDefaults::path(standardDomain()))
    , m_suiteDefaults(SqliteUserDefaults::path(NotchBranding::suiteIdentifier()),
                      SqliteUserDefaults::Access::ReadOnly)
    , m_capturePreferences(SqliteUserDefaults::path(FolderCaptureQuery::domain()),
                           SqliteUserDefaults::Access::ReadOnly)
    , m_workspace(bus)
    , m_sharing(bus)
    , m_loginItem(QCoreApplication::applicationFilePath())
    , m_lock(bus, QDBusConnection::systemBus())
    , m_sleep(QDBusConnection::systemBus())
    , m_network(bus, QDBusConnection::systemBus())
    , m_notifications(bus)
    , m_applications(bus, {NotchBranding::suiteIdentifier()})
    , m_windows(windows.make(m_defaults))
    , m_captures(m_capturePreferences)
    , m_pictures(std::make_shared<HelperPictures>())
    , m_thumbnails(m_pictures)
    , m_localServices(LocalServices::fromEnvironment(m_http))
    , m_players(bus)
    , m_scripts({},
                [this] {
                    return m_defaults.value<QStringList>(QStringLiteral("notch.ignoredPlayers"))
                        .value_or(QStringList());
                })
    , m_camera(bus)
    , m_calendars(bus, m_defaults)
    , m_platform(makePlatform())
{
    QObject::connect(&m_sleep, &SystemSleep::woke, &m_sleep, [this] { m_clock.woke(); });
}

Platform DesktopPlatform::makePlatform()
{
    return {.windows = *m_windows,
            .clock = m_clock,
            .defaults = m_defaults,
            .suiteDefaults = m_suiteDefaults,
            .applications = m_applications,
            .players = m_players,
            .loginItem = m_loginItem,
            .lock = m_lock,
            .sleep = m_sleep,
            .network = m_network,
            .notifications = m_notifications,
            .sounds = m_sounds,
            .workspace = m_workspace,
            .sharing = m_sharing,
            .captures = m_captures,
            .thumbnails = m_thumbnails,
            .pictures = m_pictures,
            .http = m_localServices ? *m_localServices : m_http,
            .location = m_location,
            .scripts = m_scripts,
            .host = m_host,
            .camera = m_camera,
            .calendars = m_calendars,
            .claudeConfig = qEnvironmentVariable("CLAUDE_CONFIG_DIR"),
            .cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                     QStringLiteral("/kestrune")};
}

} // namespace Kestrune
