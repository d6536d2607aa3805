#pragma once

#include "HttpClient.h"
#include "SemanticVersion.h"

#include <QByteArray>
#include <QDateTime>
#include <QFuture>
#include <QMap>
#include <QString>
#include <QUrl>

#include <memory>
#include <variant>

namespace Kestrune {

/// What a feed says of the newest release.
struct Release
{
    QString text; ///< The version as the feed writes it.
    SemanticVersion version;
    int keyNumber = 0;            ///< Of the key that signed it: how often the makers had replaced theirs.
    QDateTime issued;             ///< UTC, as the next.
    QDateTime expires;            ///< From then on nothing of this is to be believed.
    QMap<QString, QString> notes; ///< What is new, by language code; English under "en".
    QUrl package;                 ///< https, or on this computer.
    qint64 size = 0;              ///< Bytes of the package.
    QByteArray packageHash;       ///< SHA-256 of the package's bytes.

    /// What the package is saved as: a plain name, never a path.
    QString fileName() const;

    /// In the language of a tag such as "pt-BR", else in its base, else in English.
    QString notesIn(const QString &tag) const;
};

enum class FeedFault {
    unreadable, ///< No feed, or not one of this form.
    notSigned,  ///< Signed with another key, or altered since.
};

/// Reads the feed of one maker's releases, and keeps their packages: one at a time, and only what that maker
/// signed. Called on the main thread; nothing here blocks.
class Releases
{
public:
    enum class Kept { notSaved, notFetched, notSigned, kept };

    virtual ~Releases() = default;

    /// The release that the feed is about.
    virtual std::variant<Release, FeedFault> read(const QByteArray &feed) const = 0;

    /// Whether the release's package is there, whole and as it was signed.
    virtual QFuture<bool> holds(const Release &release) = 0;

    /// What the release's package is to be fetched into, in place of all others.
    virtual std::shared_ptr<BodySink> receive(const Release &release) = 0;

    /// Keeps what was received last, if it `isWhole` and is what was signed.
    virtual QFuture<Kept> keep(bool isWhole) = 0;

    /// The kept package.
    virtual QUrl file(const Release &release) const = 0;
};

} // namespace Kestrune
