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

/// The release of a feed. Its form is JSON:
///   {"entry": base64 of the entry, "signature": base64 of the entry's signature}
/// and the entry, which nothing is read from before its signature was checked, is JSON again:
///   {"version", "issued", "expires": times, "notes": {language: text}, "package": address, "size": bytes,
///   "sha256": of the package, in lower-case hexadecimal digits}
/// where a time is UTC to the second, as RFC 3339 writes it: 2027-01-15T08:00:00Z.
std::variant<Release, FeedFault> readReleaseFeed(const QByteArray &feed, const ReleaseKey &key);

} // namespace Kestrune
