#pragma once

#include "NotchKit/Platform/Releases.h"

#include <optional>

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

/// The keys that a copy was built with.
struct MakerKeys
{
    ReleaseKey everyday; ///< Signs the feed.
    ReleaseKey offline;  ///< Signs nothing but what replaces the other one.
};

/// The release of a feed. Its form is JSON:
///   {"entry": base64 of the entry, "signature": base64 of the entry's signature}
/// with two more members once the everyday key was replaced:
///   {"replacement": base64, "replacementSignature": base64 of its signature with the offline key}
/// of which the first is JSON again:
///   {"number": from 1 on, a higher one each time, "key": base64 of the new key's public half}
/// and the entry, which nothing is read from before its signature was checked, is JSON again:
///   {"version", "issued", "expires": times, "notes": {language: text}, "package": address, "size": bytes,
///   "sha256": of the package, in lower-case hexadecimal digits}
/// where a time is UTC to the second, as RFC 3339 writes it: 2027-01-15T08:00:00Z.
std::variant<Release, FeedFault> readReleaseFeed(const QByteArray &feed, const MakerKeys &keys);

} // namespace Kestrune
