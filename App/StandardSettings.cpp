#include "StandardSettings.h"

#include "Desktop/Calendars/DesktopCalendars.h"
#include "NotchKit/Platform/CameraHousings.h"

namespace Kestrune {

namespace {

QString housings() { return QStringLiteral("cameraHousings"); }
QString login() { return QStringLiteral("launchAtLogin"); }

/// A text in the defaults, empty where there is none; read anew by whom it concerns.
SettingsKeys::Extra textExtra(UserDefaults &defaults, const QString &key, const SettingRule &rule = {})
{
    return {[&defaults, key]() -> std::optional<DefaultsValue> {
                return defaults.value<QString>(key).value_or(QString());
            },
            [&defaults, key](const std::optional<DefaultsValue> &value) {
                if (value)
                    defaults.setObject(key, *value);
                else
                    defaults.removeObject(key);
            },
            QString(), rule};
}

SettingRule calendarSources()
{
    return SettingRule::oneOf(
        {QStringLiteral("evolution"), QStringLiteral("folders"), QStringLiteral("both")});
}

SettingRule housingSizes()
{
    return {QStringLiteral("a JSON map from outputs to sizes in points, such as {\"eDP-1\": \"185x32\"}"),
            [](const DefaultsValue &value) -> std::optional<QString> {
                for (const QString &size : convertDefaultsValue<StringMap>(value).value_or(StringMap())) {
                    if (!CameraHousings::parse(size))
                        return size;
                }
                return std::nullopt;
            }};
}

} // namespace

QString standardDomain() { return QStringLiteral("kestrune"); }

QStringList standardExtraKeys()
{
    return {housings(), login(), DesktopCalendars::sourceKey(), DesktopCalendars::folderKey()};
}

QMap<QString, SettingsKeys::Extra> standardExtras(UserDefaults &defaults, LoginItem &loginItem,
                                                  const std::function<void()> &housingsChanged,
                                                  const std::function<void(bool)> &setLaunchAtLogin)
{
    const QString key = QString::fromLatin1(CameraHousings::key);
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
        StringMap(), housingSizes()};
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
    const QString source = DesktopCalendars::sourceKey();
    const QString folder = DesktopCalendars::folderKey();
    return {{housings(), housing},
            {login(), launch},
            {source, textExtra(defaults, source, calendarSources())},
            {folder, textExtra(defaults, folder)}};
}

} // namespace Kestrune
