#pragma once

#include "NotchKit/NotchSettings.h"

#include <QMap>
#include <QStringList>

#include <functional>
#include <optional>

namespace Kestrune {

/// The settings as the command line sees them: by key, as text. It serves the running program and a
/// command that finds none alike.
class SettingsKeys
{
public:
    /// A key outside the notch's own settings.
    struct Extra
    {
        std::function<std::optional<DefaultsValue>()> read;
        std::function<void(const std::optional<DefaultsValue> &)> write; ///< Nothing resets it.
        DefaultsValue example;
        SettingRule rule = {};
    };

    /// `settings` outlives the object.
    SettingsKeys(NotchSettings &settings, const QMap<QString, Extra> &extras);

    /// The value of `key` as text; nothing for an unknown key.
    std::optional<QString> get(const QString &key) const;

    /// Sets `key` from a text. The result says what is wrong and what the setting takes, or is nothing.
    std::optional<QString> set(const QString &key, const QString &text);

    /// Resets `key` to its default. The result says what is wrong, or is nothing.
    std::optional<QString> reset(const QString &key);

private:
    NotchSettings &m_settings;
    QMap<QString, Extra> m_extras;
};

} // namespace Kestrune
