#pragma once

#include "SemanticVersion.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QUrl>

#include <optional>
#include <variant>

namespace Kestrune {

/// The public half of the key that releases are signed with: Ed25519 (RFC 8032).
class ReleaseKey
{
public:
    /// Nothing for a text that is not the base64 of 32 bytes.
    static std::optional<ReleaseKey> fromBase64(const QByteArray &text);

    /// `signature` is 64 bytes that only the key's owner can make for just this message.
    bool hasSigned(const QByteArray &message, const QByteArray &signature) const;

private:
    QByteArray m_bytes;
};

/// What a feed says of the newest release.
struct Release
{
    QString text; ///< The version as the feed writes it.
    SemanticVersion version;
    QMap<QString, QString> notes; ///< What is new, by language code; English under "en".
    QUrl package;                 ///< https, or on this computer.
    qint64 size = 0;              ///< Bytes of the package.
    QByteArray packageSignature;  ///< Of the package's bytes.

    /// What the package is saved as: a plain name, never a path.
    QString fileName() const;

    /// In the language of a tag such as "pt-BR", else in its base, else in English.
    QString notesIn(const QString &tag) const;
};

enum class FeedFault {
    unreadable, ///< No feed, or not one of this form.
    notSigned,  ///< Signed with another key, or altered since.
};

/// The release of a feed. Its form is JSON:
///   {"entry": base64 of the entry, "signature": base64 of the entry's signature}
/// and the entry, which nothing is read from before its signature was checked, is JSON again:
///   {"version", "notes": {language: text}, "package": address, "size": bytes, "signature": base64, of the
///   package}
std::variant<Release, FeedFault> readReleaseFeed(const QByteArray &feed, const ReleaseKey &key);

} // namespace Kestrune
