#include "ShortcutTrigger.h"

#include <QRegularExpression>
#include <QStringList>

namespace Kestrune::ShortcutTrigger {

namespace {

constexpr qsizetype kLongestTrigger = 80;

} // namespace

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
