#include "ReleaseFeed.h"

#include "NotchKit/Platform/Addresses.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

#include <sodium.h>

namespace Kestrune {

namespace {

constexpr double kLargestPackage = 256.0 * 1024 * 1024;
constexpr double kMostReplacements = 1'000'000;

/// Nothing for anything but whole, plain base64.
std::optional<QByteArray> fromBase64(const QByteArray &text)
{
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional(*decoded) : std::nullopt;
}

std::optional<QByteArray> bytesOf(const QJsonValue &value)
{
    return value.isString() ? fromBase64(value.toString().toLatin1()) : std::nullopt;
}

/// What signs the entry of a feed.
struct SigningKey
{
    ReleaseKey key;
    int number; ///< 0 for the one that the copy was built with.
};

std::optional<SigningKey> readReplacement(const QByteArray &bytes)
{
    const QJsonObject replacement = QJsonDocument::fromJson(bytes).object();
    const double number = replacement[QLatin1String("number")].toDouble();
    const auto key = ReleaseKey::fromBase64(replacement[QLatin1String("key")].toString().toLatin1());
    if (!key || !(number >= 1 && number <= kMostReplacements) || number != std::floor(number))
        return std::nullopt;
    return SigningKey{*key, static_cast<int>(number)};
}

std::variant<SigningKey, FeedFault> signingKeyOf(const QJsonObject &feed, const MakerKeys &keys)
{
    const QJsonValue member = feed[QLatin1String("replacement")];
    if (member.isUndefined())
        return SigningKey{keys.everyday, 0};
    const auto replacement = bytesOf(member);
    const auto signature = bytesOf(feed[QLatin1String("replacementSignature")]);
    if (!replacement || !signature)
        return FeedFault::unreadable;
    if (!keys.offline.hasSigned(*replacement, *signature))
        return FeedFault::notSigned;
    const auto key = readReplacement(*replacement);
    if (!key)
        return FeedFault::unreadable;
    return *key;
}

/// Empty for anything but 64 digits.
QByteArray readHash(const QJsonValue &value)
{
    const QByteArray text = value.toString().toLatin1();
    const QByteArray hash = QByteArray::fromHex(text);
    return hash.size() == crypto_hash_sha256_BYTES && hash.toHex() == text ? hash : QByteArray();
}

/// Invalid for anything but UTC to the second.
QDateTime readTime(const QJsonValue &value)
{
    const QString text = value.toString();
    const QDateTime time = QDateTime::fromString(text, Qt::ISODate);
    return text.endsWith(u'Z') && time.toString(Qt::ISODate) == text ? time : QDateTime();
}

std::optional<Release> readEntry(const QByteArray &bytes)
{
    const QJsonObject entry = QJsonDocument::fromJson(bytes).object();
    Release release;
    release.text = entry[QLatin1String("version")].toString();
    const auto version = SemanticVersion::parse(release.text);
    release.issued = readTime(entry[QLatin1String("issued")]);
    release.expires = readTime(entry[QLatin1String("expires")]);
    release.package = QUrl(entry[QLatin1String("package")].toString(), QUrl::StrictMode);
    const double size = entry[QLatin1String("size")].toDouble();
    release.packageHash = readHash(entry[QLatin1String("sha256")]);
    const QString name = release.fileName();
    const bool hasPlace = !name.isEmpty() && !name.startsWith(u'.') && isFetchable(release.package);
    const bool hasTime = release.issued.isValid() && release.expires.isValid();
    if (!version || release.packageHash.isEmpty() || !hasTime || !hasPlace ||
        !(size >= 1 && size <= kLargestPackage))
        return std::nullopt;
    release.version = *version;
    release.size = static_cast<qint64>(size);
    const QJsonObject notes = entry[QLatin1String("notes")].toObject();
    for (auto note = notes.begin(); note != notes.end(); ++note)
        release.notes.insert(note.key(), note.value().toString());
    return release;
}

} // namespace

std::optional<ReleaseKey> ReleaseKey::fromBase64(const QByteArray &text)
{
    const auto bytes = Kestrune::fromBase64(text);
    if (!bytes || bytes->size() != crypto_sign_PUBLICKEYBYTES || sodium_init() < 0)
        return std::nullopt;
    ReleaseKey key;
    key.m_bytes = *bytes;
    return key;
}

bool ReleaseKey::hasSigned(const QByteArray &message, const QByteArray &signature) const
{
    const auto bytes = [](const QByteArray &data) {
        return reinterpret_cast<const unsigned char *>(data.constData());
    };
    return signature.size() == crypto_sign_BYTES &&
           crypto_sign_verify_detached(bytes(signature), bytes(message),
                                       static_cast<unsigned long long>(message.size()), bytes(m_bytes)) == 0;
}

std::variant<Release, FeedFault> readReleaseFeed(const QByteArray &feed, const MakerKeys &keys)
{
    const QJsonObject object = QJsonDocument::fromJson(feed).object();
    const auto entry = bytesOf(object[QLatin1String("entry")]);
    const auto signature = bytesOf(object[QLatin1String("signature")]);
    if (!entry || !signature)
        return FeedFault::unreadable;
    const auto signedWith = signingKeyOf(object, keys);
    const auto *key = std::get_if<SigningKey>(&signedWith);
    if (!key)
        return std::get<FeedFault>(signedWith);
    if (!key->key.hasSigned(*entry, *signature))
        return FeedFault::notSigned;
    auto release = readEntry(*entry);
    if (!release)
        return FeedFault::unreadable;
    release->keyNumber = key->number;
    return *release;
}

} // namespace Kestrune
