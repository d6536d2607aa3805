#include "ShortcutTrigger.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

namespace Kestrune::ShortcutTrigger {

namespace {

constexpr qsizetype kLongestTrigger = 80;

struct Modifier
{
    quint32 mask;
    const char *portal;
    Qt::KeyboardModifier qt;
};
constexpr std::array kModifiers{
    Modifier{4096, "CTRL", Qt::ControlModifier}, Modifier{2048, "ALT", Qt::AltModifier},
    Modifier{512, "SHIFT", Qt::ShiftModifier}, Modifier{256, "LOGO", Qt::MetaModifier}};

struct Key
{
    quint32 code;
    const char *keysym; ///< The name in xkbcommon-keysyms.h, without its XKB_KEY_.
    Qt::Key qt;
};
constexpr std::array kTriggerKeys{Key{45, "n", Qt::Key_N}, Key{35, "p", Qt::Key_P}};

const Key *find(quint32 code)
{
    const auto *const key = std::ranges::find(kTriggerKeys, code, &Key::code);
    return key == kTriggerKeys.end() ? nullptr : key;
}

} // namespace

std::optional<QString> forPortal(quint32 keyCode, quint32 modifiers)
{
    const Key *const key = find(keyCode);
    if (!key)
        return std::nullopt;
    QStringList parts;
    for (const Modifier &modifier : kModifiers) {
        if (modifiers & modifier.mask)
            parts.append(QString::fromLatin1(modifier.portal));
    }
    parts.append(QString::fromLatin1(key->keysym));
    return parts.join(QLatin1Char('+'));
}

std::optional<int> forQt(quint32 keyCode, quint32 modifiers)
{
    const Key *const key = find(keyCode);
    if (!key)
        return std::nullopt;
    int keys = key->qt;
    for (const Modifier &modifier : kModifiers) {
        if (modifiers & modifier.mask)
            keys |= static_cast<int>(modifier.qt);
    }
    return keys;
}

QString readable(const QString &description)
{
    static const QRegularExpression accelerator(QStringLiteral("((?:<\\w+>)+)(\\w+)"));
    QString text = description.left(kLongestTrigger).simplified();
    text.removeIf([](QChar character) { return !character.isPrint(); });
    const auto match = accelerator.match(text);
    if (!match.hasMatch())
        return text;
    QStringList parts =
        match.captured(1).split(QRegularExpression(QStringLiteral("[<>]+")), Qt::SkipEmptyParts);
    parts.replaceInStrings(QStringLiteral("Control"), QStringLiteral("Ctrl"));
    const QString key = match.captured(2);
    parts.append(key.size() == 1 ? key.toUpper() : key);
    return parts.join(QLatin1Char('+'));
}

} // namespace Kestrune::ShortcutTrigger
