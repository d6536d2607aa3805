#pragma once

#include "LaunchRequest.h"
#include "NotchKit/NotchController.h"
#include "NotchKit/NotchSettings.h"
#include "PrompterRemote.h"
#include "TimerNotice.h"

#include <QObject>
#include <QProperty>

#include <functional>

namespace Kestrune {

class NotchPanels;

/// The windows that the application shows.
struct AppWindows
{
    NotchPanels &panels;
    std::function<void(const QString &message, const QString &details)> showAlert;
    std::function<void()> openSettings = {}; ///< Shows the settings window.
};

/// Owns the settings, the hub and the controller for the life of the process, and pauses the notch while
/// the companion suite runs with its own notch on. Main thread only.
class AppState : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged
                   BINDABLE bindableLaunchAtLogin)
    /// The suite's notch is on, so this program keeps its own stopped.
    Q_PROPERTY(bool yieldingToFennivar READ yieldingToFennivar NOTIFY yieldingToFennivarChanged BINDABLE
                   bindableYieldingToFennivar)

public:
    /// Starts the notch unless the suite's is on, and opens it a second later if `request` asks for it or
    /// this is the very first start.
    AppState(const Platform &platform, const AppWindows &windows, const LaunchRequest &request,
             QObject *parent = nullptr);
    ~AppState() override;

    NotchSettings &settings() { return m_settings; }
    NotchServices &services() { return m_services; }
    NotchController &controller() { return m_controller; }
    PrompterRemote &prompter() { return m_prompter; }

    bool launchAtLogin() const { return m_launchAtLogin; }
    QBindable<bool> bindableLaunchAtLogin() { return &m_launchAtLogin; }
    bool yieldingToFennivar() const { return m_yieldingToFennivar; }
    QBindable<bool> bindableYieldingToFennivar() { return &m_yieldingToFennivar; }

    /// Opens the notch, or tells the user why it is paused.
    void showNotch(std::optional<NotchTool> tool, bool takeKeyboard = false);

    /// Opens or closes the notch under the pointer, or tells the user why it is paused.
    void toggle();

    /// Registers or unregisters the login item; on failure the flag stays as the system reports it.
    void setLaunchAtLogin(bool on);

    /// Shows the settings window.
    void openSettings();

    /// Opens the companion suite's page in the browser.
    Q_INVOKABLE void openSuitePage();

Q_SIGNALS:
    void launchAtLoginChanged();
    void yieldingToFennivarChanged();

private:
    void checkFennivar();
    void watchSuite();
    void schedule(LaunchRequest request);
    void showPausedAlert();
    void followSettings();

    Platform m_platform;
    AppWindows m_windows;
    NotchSettings m_settings;
    NotchServices m_services;
    NotchController m_controller;
    PrompterRemote m_prompter;
    TimerNotice m_timerNotice;
    bool m_isTold = false;                   ///< When the suite comes and goes.
    std::unique_ptr<RunningTimer> m_watcher; ///< None while nothing can have changed untold.
    std::unique_ptr<RunningTimer> m_launch;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, m_launchAtLogin, false,
                                         &AppState::launchAtLoginChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, m_yieldingToFennivar, false,
                                         &AppState::yieldingToFennivarChanged)
};

} // namespace Kestrune
