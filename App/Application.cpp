#include "Application.h"

#include "LocalServices.h"
#include "NotchKit/Views/NotchWindow.h"
#include "StandardSettings.h"
#include "TrayIcon.h"
#include "Updates.h"

#include <QCoreApplication>

namespace Kestrune {

Application::Application(const QDBusConnection &bus)
    : m_bus(bus)
    , m_defaults(SqliteUserDefaults::path(standardDomain()))
    , m_suiteDefaults(SqliteUserDefaults::path(NotchBranding::suiteIdentifier()),
                      SqliteUserDefaults::Access::ReadOnly)
    , m_capturePreferences(SqliteUserDefaults::path(FolderCaptureQuery::domain()),
                           SqliteUserDefaults::Access::ReadOnly)
    , m_workspace(bus)
    , m_sharing(bus)
    , m_loginItem(QCoreApplication::applicationFilePath())
    , m_applications(bus, {NotchBranding::suiteIdentifier()})
    , m_displays(m_defaults)
    , m_captures(m_capturePreferences)
    , m_localServices(LocalServices::fromEnvironment(m_http))
    , m_players(bus)
    , m_camera(bus)
    , m_calendars(bus, m_defaults)
    , m_updater(makeUpdater({m_http, m_clock, m_defaults, m_workspace}))
    , m_appearance(bus)
    , m_panels(m_engine, m_desktop)
    , m_alert(m_engine)
{
    registerViews();
}

void Application::start(const LaunchRequest &request)
{
    m_applications.whenReady([this, request] { run(request); });
}

void Application::run(const LaunchRequest &request)
{
    const AppPlatform app{
        m_defaults,
        m_suiteDefaults,
        m_applications,
        m_loginItem,
        [this](const QString &message, const QString &details) { m_alert.show(message, details); },
        [this] { m_settingsWindow->open(); }};
    HttpClient &http = m_localServices ? *m_localServices : m_http;
    const NotchPlatform tools{m_clock,   m_defaults, m_sounds,     m_workspace, m_pasteboard, m_drags,
                              m_sharing, m_captures, m_thumbnails, http,        m_location,   m_players,
                              m_scripts, m_host,     m_camera,     m_calendars};
    const NotchControllerPlatform controller{m_clock, m_displays, m_pointer, m_panels, m_hotKeys, m_drags};
    m_state = std::make_unique<AppState>(app, tools, controller, request);
    m_settingsWindow = std::make_unique<SettingsWindow>(m_engine, *m_state, *m_updater, m_appearance);
    m_updateWindow = std::make_unique<UpdateWindow>(m_engine, *m_updater, m_appearance);
    m_statusItem = std::make_unique<BusStatusItem>(m_bus, NotchBranding::fennivar().name, trayIcon);
    m_menu = std::make_unique<AppMenu>(*m_state, *m_updater, *m_statusItem);
    m_keys = std::make_unique<SettingsKeys>(makeKeys());
    m_control = std::make_unique<ControlService>(*m_state, *m_keys);
    m_bus.registerObject(ControlService::objectPath(), m_control.get(),
                         QDBusConnection::ExportScriptableSlots);
}

SettingsKeys Application::makeKeys()
{
    return {m_state->settings(), standardExtras(
                                     m_defaults, m_loginItem, [this] { m_displays.reloadHousings(); },
                                     [this](bool on) { m_state->setLaunchAtLogin(on); })};
}

} // namespace Kestrune
