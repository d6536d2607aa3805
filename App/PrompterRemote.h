#pragma once

#include "NotchKit/GlobalHotkey.h"

#include <QString>

#include <memory>
#include <optional>

namespace Kestrune {

class AppState;
class HotKeys;

/// The teleprompter while another window has the keyboard: by commands, and by a hot key of its own for who
/// turned it on. Main thread only.
class PrompterRemote
{
public:
    /// Both outlive the object.
    PrompterRemote(AppState &app, HotKeys &hotKeys)
        : m_app(app)
        , m_hotKeys(hotKeys)
    {}

    /// Holds the hot key while the setting is on and the notch runs, and only then.
    void applyShortcut();

    /// Carries out "play", "pause" or "toggle"; "speed" or "position" with a number, which is added to the
    /// present one when it has a sign. Speeds are points a second, positions percent of the script. To play,
    /// the script is shown. What is wrong with it, or nothing.
    std::optional<QString> carryOut(const QString &action, const QString &number);

    /// Whether it can be carried out by its form: what is wrong with it, or nothing.
    static std::optional<QString> faultOf(const QString &action, const QString &number);

private:
    std::optional<QString> play();
    std::optional<QString> setSpeed(const QString &number);
    void setPosition(const QString &number);

    AppState &m_app;
    HotKeys &m_hotKeys;
    std::unique_ptr<GlobalHotkey> m_hotkey;
};

} // namespace Kestrune
