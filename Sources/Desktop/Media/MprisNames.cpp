#include "MprisNames.h"

#include <algorithm>

namespace Kestrune {

namespace {

bool containsOne(const QString &busName, const QStringList &parts)
{
    const QString name = busName.mid(QLatin1String(MprisNames::kPrefix).size());
    return std::ranges::any_of(parts, [&](const QString &part) {
        const QString word = part.trimmed();
        return !word.isEmpty() && name.contains(word, Qt::CaseInsensitive);
    });
}

} // namespace

std::optional<MediaPlayer> MprisNames::playerOf(const QString &busName)
{
    const QLatin1String prefix(kPrefix);
    if (!busName.startsWith(prefix))
        return std::nullopt;
    const QString name = busName.mid(prefix.size());
    // It only repeats what other players say.
    if (name == QLatin1String("playerctld"))
        return std::nullopt;
    return name == QLatin1String("spotify") ? MediaPlayer::spotify : MediaPlayer::music;
}

bool MprisNames::isIgnored(const QString &busName, const QStringList &parts)
{
    return containsOne(busName, parts);
}

bool MprisNames::isBrowser(const QString &busName)
{
    static const QStringList browsers{
        QStringLiteral("firefox"), QStringLiteral("librewolf"), QStringLiteral("chromium"),
        QStringLiteral("chrome"),  QStringLiteral("brave"),     QStringLiteral("vivaldi"),
        QStringLiteral("opera"),   QStringLiteral("edge"),
    };
    return containsOne(busName, browsers);
}

bool MprisNames::isBrowserIntegration(const QString &busName)
{
    return busName.startsWith(QLatin1String(kPrefix) + QLatin1String("plasma-browser-integration"));
}

} // namespace Kestrune
