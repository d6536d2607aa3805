#include "StandardSettings.h"

#include "Desktop/X11/X11Displays.h"

namespace Kestrune {

namespace {

QString housings() { return QStringLiteral("cameraHousings"); }
QString login() { return QStringLiteral("launchAtLogin"); }

} // namespace

QString standardDomain() { return QStringLiteral("kestrune"); }

QStringList standardExtraKeys() { return {housings(), login()}; }

QMap<QString, SettingsKeys::Extra> standardExtras(UserDefaults &defaults, LoginItem &loginItem,
                                                  const std::function<void()> &housingsChanged,
                                                  const std::function<void(bool)> &setLaunchAtLogin)
{
    const QString key = QString::fromLatin1(X11Displays::housingsKey);
    const SettingsKeys::Extra housing{
        [&defaults, key]() -> std::optional<DefaultsValue> {
            return defaults.value<StringMap>(key).value_or(StringMap());
        },
        [&defaults, key, housingsChanged](const std::optional<DefaultsValue> &value) {
            if (value)
                defaults.setObject(key, *value);
            else
                defaults.removeObject(key);
            if (housingsChanged)
                housingsChanged();
        },
        StringMap()};
    const SettingsKeys::Extra launch{
        [&loginItem]() -> std::optional<DefaultsValue> { return loginItem.isEnabled(); },
        [&loginItem, setLaunchAtLogin](const std::optional<DefaultsValue> &value) {
            const bool on = value && std::get<bool>(*value);
            if (setLaunchAtLogin)
                setLaunchAtLogin(on);
            else
                loginItem.setEnabled(on);
        },
        false};
    return {{housings(), housing}, {login(), launch}};
}

} // namespace Kestrune
