#include "MprisPlayer.h"

#include "CoverSource.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr qsizetype kLongestTag = 1000; // Characters that are of use to anyone.
constexpr qsizetype kMostArtists = 20;

/// The properties in a value that holds such a map, packed as the bus packs it or not.
QVariantMap mapOf(const QVariant &value)
{
    if (value.userType() != qMetaTypeId<QDBusArgument>())
        return value.toMap();
    const auto packed = value.value<QDBusArgument>();
    return packed.currentSignature() == QLatin1String("a{sv}") ? qdbus_cast<QVariantMap>(packed)
                                                               : QVariantMap();
}

/// A text of one line.
QString lineOf(const QString &text) { return text.left(kLongestTag).simplified(); }

QString artistOf(const QVariant &value)
{
    return lineOf(value.toStringList().mid(0, kMostArtists).join(QLatin1String(", ")));
}

QString titleOf(const QVariantMap &song, const QString &busName)
{
    const QString address = song.value(QStringLiteral("xesam:url")).toString();
    const QUrl file(address.size() <= CoverSource::kLongestAddress ? address : QString());
    for (const QString &name : {song.value(QStringLiteral("xesam:title")).toString(), file.fileName()}) {
        if (QString line = lineOf(name); !line.isEmpty())
            return line;
    }
    return busName.section(QLatin1Char('.'), 3, 3); // As the player calls itself on the bus.
}

MprisState::Playback playbackOf(const QString &status)
{
    if (status == QLatin1String("Playing"))
        return MprisState::Playback::playing;
    return status == QLatin1String("Paused") ? MprisState::Playback::paused : MprisState::Playback::stopped;
}

/// Players disagree on the type of a time.
qint64 timeOf(const QVariant &value) { return std::max<qint64>(value.toLongLong(), 0); }

/// Some tell the object's path as a text.
QString pathOf(const QVariant &value)
{
    const bool isPath = value.userType() == qMetaTypeId<QDBusObjectPath>();
    const QString path = isPath ? value.value<QDBusObjectPath>().path() : value.toString();
    const bool isNone = path == QLatin1String("/org/mpris/MediaPlayer2/TrackList/NoTrack");
    static const QRegularExpression form(QStringLiteral("^(/[A-Za-z0-9_]+)+$"));
    return path.size() <= kLongestTag && form.match(path).hasMatch() && !isNone ? path : QString();
}

QString inSeconds(qint64 microseconds)
{
    return QString::number(static_cast<double>(microseconds) / 1e6, 'f', 3);
}

} // namespace

std::optional<MprisState> MprisState::of(const QString &busName, const QDBusMessage &reply)
{
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return std::nullopt;
    const QVariantMap properties = mapOf(reply.arguments().constFirst());
    const QVariantMap song = mapOf(properties.value(QStringLiteral("Metadata")));
    MprisState state;
    state.busName = busName;
    state.playback = playbackOf(properties.value(QStringLiteral("PlaybackStatus")).toString());
    state.title = titleOf(song, busName);
    state.artist = artistOf(song.value(QStringLiteral("xesam:artist")));
    state.cover = song.value(QStringLiteral("mpris:artUrl")).toString();
    state.length = timeOf(song.value(QStringLiteral("mpris:length")));
    state.position = timeOf(properties.value(QStringLiteral("Position")));
    const double rate = properties.value(QStringLiteral("Rate")).toDouble();
    state.rate = rate > 0 && std::isfinite(rate) ? rate : 1;
    if (state.length > 0 && properties.value(QStringLiteral("CanSeek")).toBool())
        state.seekableTrack = pathOf(song.value(QStringLiteral("mpris:trackid")));
    return state;
}

QString MprisState::toStatus(MediaPlayer player, const QString &coverIdentity) const
{
    if (!hasSong())
        return QString();
    const QString duration = player == MediaPlayer::spotify ? QString::number(length / 1000)
                                                            : inSeconds(length); // as each counts it
    namespace Line = PlayerScripts::StatusLine;
    QStringList lines{playback == Playback::playing ? QStringLiteral("playing") : QStringLiteral("paused"),
                      title, artist, duration, inSeconds(position)};
    if (!coverIdentity.isEmpty())
        lines.append(QLatin1String(Line::kCover) + coverIdentity);
    if (rate != 1)
        lines.append(QLatin1String(Line::kRate) + QString::number(rate));
    if (!seekableTrack.isEmpty())
        lines.append(QLatin1String(Line::kSeekable));
    return lines.join(QLatin1Char('\n'));
}

} // namespace Kestrune
