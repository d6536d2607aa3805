// What a media player says of itself: values of any type under the names that are read.

#include "Desktop/Media/MprisPlayer.h"
#include "NotchKit/Tools/NowPlaying/PlayerStatus.h"

#include <array>
#include <cstdlib>

using namespace Kestrune;

namespace {

QVariant valueOf(const QByteArray &line)
{
    const QByteArray rest = line.mid(1);
    switch (line.isEmpty() ? 0 : line.front() % 8) {
    case 0:
        return QString::fromUtf8(rest);
    case 1:
        return QString::fromUtf8(rest).split(QLatin1Char(','));
    case 2:
        return rest.toLongLong(nullptr, 16);
    case 3:
        return rest.toULongLong(nullptr, 16);
    case 4:
        return rest.toDouble();
    case 5:
        return QVariantMap{{QString::fromUtf8(rest), rest}};
    case 6:
        return QVariantList{QString::fromUtf8(rest), rest.toInt()};
    default:
        return rest;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    constexpr std::array kSong{"xesam:title", "xesam:artist", "xesam:url", "mpris:length", "mpris:artUrl"};
    const QByteArrayList lines =
        QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)).split('\n');
    QVariantMap song;
    for (std::size_t i = 0; i < kSong.size(); ++i)
        song.insert(QLatin1String(kSong.at(i)), valueOf(lines.value(static_cast<qsizetype>(i))));
    song.insert(QStringLiteral("mpris:trackid"), valueOf(lines.value(8)));
    const QVariantMap properties{{QStringLiteral("PlaybackStatus"), valueOf(lines.value(5))},
                                 {QStringLiteral("Position"), valueOf(lines.value(6))},
                                 {QStringLiteral("Rate"), valueOf(lines.value(9))},
                                 {QStringLiteral("CanSeek"), true},
                                 {QStringLiteral("Metadata"), song}};
    const QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("a.b"), QStringLiteral("/"),
                                                             QStringLiteral("a.b"), QStringLiteral("c"));
    const auto state = MprisState::of(QString::fromUtf8(lines.value(7)), call.createReply(properties));
    if (!state || state->title.size() > 1000 || state->artist.size() > 1000)
        std::abort();
    for (const MediaPlayer player : kMediaPlayers) {
        if (state->hasSong() && !parsePlayerStatus(player, state->toStatus(player)))
            std::abort();
    }
    return 0;
}
