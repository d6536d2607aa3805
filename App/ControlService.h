#pragma once

#include "SettingsKeys.h"

#include <QDBusContext>
#include <QObject>

namespace Kestrune {

class AppState;
struct WindowSystemChoice;

/// The running program on the session bus. Its calls come from the command line, from key bindings and
/// from a second start. Main thread only.
class ControlService : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.kestrune.Control")

public:
    static QString busName() { return QStringLiteral("example.kestrune.Kestrune"); }
    static QString objectPath() { return QStringLiteral("/example/kestrune/Kestrune"); }
    static QString interfaceName() { return QStringLiteral("example.kestrune.Control"); }

    /// All outlive the service.
    ControlService(AppState &app, SettingsKeys &settings, const WindowSystemChoice &windows,
                   QObject *parent = nullptr);

public Q_SLOTS:
    /// Opens or closes the notch of the display under the pointer.
    Q_SCRIPTABLE void Toggle();
    /// Opens the notch on the tool of that raw value, or with an empty one on what it showed last.
    Q_SCRIPTABLE void Open(const QString &tool);
    /// Closes every notch.
    Q_SCRIPTABLE void Close();
    /// Shows the settings window.
    Q_SCRIPTABLE void OpenSettings();
    Q_SCRIPTABLE void Quit();
    /// The program was started again, with "--open" and a tool or without.
    Q_SCRIPTABLE void Reopen(const QString &tool);
    /// The state as JSON.
    Q_SCRIPTABLE QString Status();
    Q_SCRIPTABLE QString GetSetting(const QString &key);
    Q_SCRIPTABLE void SetSetting(const QString &key, const QString &text);
    Q_SCRIPTABLE void ResetSetting(const QString &key);

private:
    void report(const std::optional<QString> &fault);

    AppState &m_app;
    SettingsKeys &m_settings;
    const WindowSystemChoice &m_windows;
};

} // namespace Kestrune
