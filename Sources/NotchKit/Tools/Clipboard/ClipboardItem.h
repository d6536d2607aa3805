#pragma once

#include "ClipboardPicture.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>
#include <QUuid>

#include <optional>

namespace Kestrune {

/// Holds a value beside stored fields that is never stored itself: it is written as nothing and read as none.
template <typename Value>
struct CodableIgnored
{
    std::optional<Value> wrappedValue;

    bool operator==(const CodableIgnored &) const = default;
};

/// What came with a copy that its entry does not show. In memory only, but for the text of a pinned entry.
/// Copies share their data; equal means the same data in memory.
struct ClipboardOriginal
{
    QString text;    ///< Whole, blanks at its ends and all; null where the entry has it so.
    QByteArray html; ///< The same as its owner marked it up; often empty.

    /// What it takes in memory, in bytes.
    qint64 cost() const { return qint64{2} * text.size() + html.size(); }

    bool operator==(const ClipboardOriginal &other) const
    {
        return text.constData() == other.text.constData() && html.constData() == other.html.constData();
    }
};

/// One entry of the clipboard history.
class ClipboardItem
{
    Q_GADGET
    Q_PROPERTY(QString id READ idText)
    Q_PROPERTY(QString symbol READ symbol)
    Q_PROPERTY(QString preview READ preview)
    Q_PROPERTY(bool isLink READ isLink)
    Q_PROPERTY(QDateTime date MEMBER date)
    Q_PROPERTY(bool pinned MEMBER pinned)
    Q_PROPERTY(bool hasThumbnail READ hasThumbnail)
    Q_PROPERTY(QImage thumbnail READ thumbnail)

public:
    enum class Kind { text, link, image, pdf, file };

    QUuid id = QUuid::createUuid();
    Kind kind = Kind::text;
    QString text;      ///< The text, the link, the file names, or the picture's size in words.
    QStringList paths; ///< Absolute paths of copied files.
    QDateTime date;    ///< Of the capture, UTC.
    CodableIgnored<ClipboardPicture> image;
    CodableIgnored<ClipboardOriginal> original = {};
    bool pinned = false; ///< Kept until the user deletes it.

    QString idText() const { return id.toString(QUuid::WithoutBraces).toUpper(); }

    /// The symbol of its kind.
    QString symbol() const;

    /// The beginning of the text, on one line.
    QString preview() const;

    bool isLink() const { return kind == Kind::link; }

    bool hasThumbnail() const { return image.wrappedValue.has_value(); }

    /// A null image for an item without a picture.
    QImage thumbnail() const;

    /// The text to copy again: whole while it is known.
    QString wholeText() const;

    /// Whether copying it again would be the same to the user: same kind, text and files, and the same
    /// picture where it has no file.
    bool sameContent(const ClipboardItem &other) const;

    bool operator==(const ClipboardItem &other) const = default;
};

using ClipboardItems = QList<ClipboardItem>;

/// The stored form: a JSON array, UTF-8. Pictures are left out; dates are seconds since 2001-01-01 UTC. A
/// pinned item has its whole text beside the one shown, up to a million UTF-16 units. Which ones are
/// pinned is not in it.
QByteArray encodeClipboardItems(const ClipboardItems &items);

/// Gives that form of a list that changes by an item at a time: each item, which stays as it is, is encoded
/// once.
class ClipboardEncoder
{
public:
    QByteArray encode(const ClipboardItems &items);

private:
    QHash<QUuid, QByteArray> m_entries; ///< Of the items of the last list.
};

/// Nothing when `stored` is not, as a whole, such an array. `pinned`: of pinned items.
std::optional<ClipboardItems> decodeClipboardItems(const QByteArray &stored, bool pinned = false);

} // namespace Kestrune
