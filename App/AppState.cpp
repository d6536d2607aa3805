#include "AppState.h"

#include "Log.h"
#include "NotchKit/NotchStrings.h"
#include "NotchKit/Platform/LoginItem.h"
#include "NotchKit/Platform/RunningApplications.h"
#include "NotchKit/Platform/UserDefaults.h"
#include "NotchKit/Platform/WindowSystem.h"

#include <QCoreApplication>
#include <QPointer>

#include <cstdio>

namespace Kestrune {

Q_LOGGING_CATEGORY(appLog, "kestrune.app", QtWarningMsg)

using namespace std::chrono_literals;

namespace {

constexpr auto kSuiteCheck = 3s;
constexpr auto kLaunchDelay = 1s; // The panels are on screen by then.

QString welcomedKey() { return QStringLiteral("kestrune.welcomed"); }

} // namespace

AppState::AppState(const Platform &platform, const AppWindows &windows, const LaunchRequest &request,
                   QObject *parent)
    : QObject(parent)
    , m_platform(platform)
    , m_windows(windows)
    , m_settings(platform.defaults)
    , m_services(m_settings, NotchBranding::fennivar(), platform)
    , m_controller(m_services, platform, windows.panels)
    , m_prompter(*this, platform.windows.hotKeys())
    , m_timerNotice(m_services, m_controller, platform.notifications)
    , m_launchAtLogin(platform.loginItem.isEnabled())
{
    m_services.openSettings = windows.openSettings;
    followSettings();
    connect(&m_timerNotice, &TimerNotice::timerWanted, this, [this] { showNotch(NotchTool::timer, true); });
    m_isTold = m_platform.applications.follow([self = QPointer(this)] {
        if (self)
            self->checkFennivar();
    });
    checkFennivar();
    schedule(request);
}

AppState::~AppState() = default;

void AppState::followSettings()
{
    for (const auto changed : {&NotchSettings::allDisplaysChanged, &NotchSettings::showWithoutNotchChanged,
                               &NotchSettings::hideOverFullScreenChanged, &NotchSettings::placementChanged,
                               &NotchSettings::shortcutEnabledChanged, &NotchSettings::shortcutChanged})
        connect(&m_settings, changed, &m_controller, &NotchController::settingsChanged);
    connect(&m_settings, &NotchSettings::prompterShortcutEnabledChanged, this,
            [this] { m_prompter.applyShortcut(); });
}

void AppState::schedule(LaunchRequest request)
{
    if (!m_platform.defaults.value<bool>(welcomedKey()).value_or(false)) {
        m_platform.defaults.setObject(welcomedKey(), true);
        request = {true, NotchTool::home};
    }
    if (request.open)
        m_launch = m_platform.clock.after(kLaunchDelay, [this, tool = request.tool] { showNotch(tool); });
}

/// Nobody tells when its setting changes.
void AppState::watchSuite()
{
    const bool mayChange = !m_isTold || m_platform.applications.isRunning(NotchBranding::suiteIdentifier());
    if (!mayChange)
        m_watcher.reset();
    else if (!m_watcher)
        m_watcher = m_platform.clock.every(kSuiteCheck, [this] { checkFennivar(); });
}

void AppState::checkFennivar()
{
    watchSuite();
    const bool yield = m_platform.applications.isRunning(NotchBranding::suiteIdentifier()) &&
                       m_platform.suiteDefaults.value<bool>(QStringLiteral("notch.enabled")).value_or(false);
    if (yield != yieldingToFennivar())
        qCInfo(appLog, yield ? "makes way for the suite's notch" : "the suite's notch has gone");
    m_yieldingToFennivar = yield;
    if (yield)
        m_controller.stop();
    else
        m_controller.start();
    m_prompter.applyShortcut();
}

void AppState::showNotch(std::optional<NotchTool> tool, bool takeKeyboard)
{
    if (yieldingToFennivar())
        showPausedAlert();
    else
        m_controller.open(tool, takeKeyboard);
}

void AppState::toggle()
{
    if (yieldingToFennivar())
        showPausedAlert();
    else
        m_controller.toggle();
}

void AppState::showPausedAlert()
{
    m_windows.showAlert(
        notchStrings(QT_TRANSLATE_NOOP("notch", "Fennivar’s notch is on, so Kestrune is paused.")),
        notchStrings(QT_TRANSLATE_NOOP("notch", "Turn off Notch in Fennivar to use Kestrune.")));
}

void AppState::setLaunchAtLogin(bool on)
{
    if (const auto failure = m_platform.loginItem.setEnabled(on)) {
        std::printf("Kestrune: launch at login failed: %s\n", qPrintable(*failure));
        std::fflush(stdout);
    }
    m_launchAtLogin = m_platform.loginItem.isEnabled();
}

void AppState::openSettings()
{
    if (m_windows.openSettings)
        m_windows.openSettings();
}

void AppState::openSuitePage()
{
    if (const auto &page = m_services.branding().creditURL)
        m_services.surroundings()->openUrl(*page);
}

} // namespace Kestrune
