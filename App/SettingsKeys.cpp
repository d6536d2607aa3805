#include "SettingsKeys.h"

#include "SettingsText.h"

namespace Kestrune {

namespace {

QString unknown(const QString &key) { return QStringLiteral("no setting is named %1").arg(key); }

/// What is named in one line of a message, which a note that was pasted for a number would burst.
QString shortened(const QString &text)
{
    constexpr qsizetype most = 60;
    return text.size() > most ? text.left(most) + QChar(0x2026) : text;
}

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
    const SettingRule &rule = access ? access->rule : extra->rule;
    const auto value = SettingsText::parse(text, example);
    const auto culprit = value ? rule.culprit(*value) : text;
    if (culprit || (access && !access->assign(m_settings, value))) {
        const QString wanted = rule.wanted.isEmpty() ? SettingsText::expectation(example) : rule.wanted;
        return QStringLiteral("%1 takes %2, not \"%3\"").arg(key, wanted, shortened(culprit.value_or(text)));
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
