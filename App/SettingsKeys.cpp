#include "SettingsKeys.h"

#include "NotchKit/NotchSettings.h"
#include "SettingsText.h"

namespace Kestrune {

namespace {

QString unknown(const QString &key) { return QStringLiteral("no setting is named %1").arg(key); }

} // namespace

SettingsKeys::SettingsKeys(NotchSettings &settings, const QMap<QString, Extra> &extras)
    : m_settings(settings)
    , m_extras(extras)
{}

std::optional<QString> SettingsKeys::get(const QString &key) const
{
    if (const auto *access = NotchSettings::access(key))
        return SettingsText::format(access->stored(m_settings));
    const auto extra = m_extras.constFind(key);
    return extra == m_extras.cend() ? std::nullopt : std::optional(SettingsText::format(extra->read()));
}

std::optional<QString> SettingsKeys::set(const QString &key, const QString &text)
{
    const auto *access = NotchSettings::access(key);
    const auto extra = m_extras.constFind(key);
    if (!access && extra == m_extras.cend())
        return unknown(key);
    const DefaultsValue &example = access ? access->example : extra->example;
    const auto value = SettingsText::parse(text, example);
    if (!value || (access && !access->assign(m_settings, value))) {
        const QString wanted =
            value ? QStringLiteral("one of its cases") : SettingsText::expectation(example);
        return QStringLiteral("%1 takes %2, not \"%3\"").arg(key, wanted, text);
    }
    if (!access)
        extra->write(value);
    return std::nullopt;
}

std::optional<QString> SettingsKeys::reset(const QString &key)
{
    const auto extra = m_extras.constFind(key);
    if (const auto *access = NotchSettings::access(key))
        access->assign(m_settings, std::nullopt);
    else if (extra != m_extras.cend())
        extra->write(std::nullopt);
    else
        return unknown(key);
    return std::nullopt;
}

} // namespace Kestrune
