// The release feed: as a whole, and as an entry that was signed, which is read further.

#include "Desktop/Updates/ReleaseFeed.h"

#include <array>
#include <cstdlib>

#include <sodium.h>

using namespace Kestrune;

namespace {

/// A key of nobody's.
struct Signer
{
    Signer()
    {
        const std::array<unsigned char, crypto_sign_SEEDBYTES> seed{};
        if (sodium_init() < 0 ||
            crypto_sign_seed_keypair(publicHalf.data(), secretHalf.data(), seed.data()) != 0)
            std::abort();
    }
    ReleaseKey key() const
    {
        const QByteArray bytes(reinterpret_cast<const char *>(publicHalf.data()), crypto_sign_PUBLICKEYBYTES);
        return *ReleaseKey::fromBase64(bytes.toBase64());
    }
    QByteArray feed(const uint8_t *data, size_t size) const
    {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(reinterpret_cast<unsigned char *>(signature.data()), nullptr, data, size,
                             secretHalf.data());
        const QByteArray entry(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
        return R"({"entry":")" + entry.toBase64() + R"(","signature":")" + signature.toBase64() + R"("})";
    }
    /// What was signed as a replacement of the key, beside an entry that nobody signed.
    QByteArray replaced(const uint8_t *data, size_t size) const
    {
        QByteArray replacement = feed(data, size);
        replacement.replace("\"entry\"", "\"replacement\"");
        replacement.replace("\"signature\"", "\"replacementSignature\"");
        return replacement.chopped(1) + R"(,"entry":"e30=","signature":")" + QByteArray(86, 'A') + R"(=="})";
    }

    std::array<unsigned char, crypto_sign_PUBLICKEYBYTES> publicHalf{};
    std::array<unsigned char, crypto_sign_SECRETKEYBYTES> secretHalf{};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Signer signer;
    static const MakerKeys keys{signer.key(), signer.key()};
    const QByteArray raw(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (std::holds_alternative<Release>(readReleaseFeed(raw, keys)))
        std::abort(); // nobody signed it
    if (std::holds_alternative<Release>(readReleaseFeed(signer.replaced(data, size), keys)))
        std::abort(); // whatever the new key is, it did not sign the entry
    const auto feed = readReleaseFeed(signer.feed(data, size), keys);
    const auto *fault = std::get_if<FeedFault>(&feed);
    if (fault && *fault == FeedFault::notSigned)
        std::abort();
    const auto *release = std::get_if<Release>(&feed);
    if (!release)
        return 0;
    const QString name = release->fileName();
    if (release->size < 1 || name.isEmpty() || name.startsWith(u'.') || name.contains(u'/') ||
        release->version != SemanticVersion::parse(release->text))
        std::abort();
    for (const char *language : {"de", "pt-BR", "zh-Hans", "-", ""})
        release->notesIn(QString::fromLatin1(language));
    return 0;
}
