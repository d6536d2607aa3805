#include "ClipboardItem.h"

#include "NotchKit/Platform/Utc.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace Kestrune {

namespace {

struct KindEntry
{
    const char *rawValue;
    const char *symbol;
};

constexpr std::array kKinds{
    KindEntry{"text", "text.alignleft"}, KindEntry{"link", "link"}, KindEntry{"image", "photo"},
    KindEntry{"pdf", "doc.richtext"},    KindEntry{"file", "doc"},
};
static_assert(kKinds.size() == static_cast<std::size_t>(ClipboardItem::Kind::file) + 1);

constexpr qint64 kReferenceDate = 978'307'200; // 2001-01-01 00:00:00 UTC, seconds since 1970.
constexpr double kFarthest = 1e11;             // Seconds; about three thousand years either way.
constexpr qsizetype kIdLength = 36;
constexpr qsizetype kPreviewLength = 300;
constexpr qsizetype kMostWhole = 1'000'000; // UTF-16 units of a pinned text.
const QString kWhole = QStringLiteral("whole");

const KindEntry &entry(ClipboardItem::Kind kind) { return kKinds.at(static_cast<std::size_t>(kind)); }

std::optional<ClipboardItem::Kind> kindOf(const QJsonValue &value)
{
    const QString raw = value.toString();
    const auto found = std::ranges::find_if(
        kKinds, [&](const KindEntry &kind) { return raw == QLatin1String(kind.rawValue); });
    if (found == kKinds.end())
        return std::nullopt;
    return static_cast<ClipboardItem::Kind>(found - kKinds.begin());
}

std::optional<QUuid> idOf(const QJsonValue &value)
{
    const QString text = value.toString();
    const auto id = QUuid::fromString(text);
    if (text.size() != kIdLength || (id.isNull() && text != QUuid().toString(QUuid::WithoutBraces)))
        return std::nullopt;
    return id;
}

std::optional<QStringList> pathsOf(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QStringList paths;
    for (const auto &path : value.toArray()) {
        if (!path.isString())
            return std::nullopt;
        paths.append(path.toString());
    }
    return paths;
}

std::optional<QDateTime> dateOf(const QJsonValue &value)
{
    const double seconds = value.toDouble(NAN);
    if (!(std::abs(seconds) < kFarthest))
        return std::nullopt;
    return QDateTime::fromMSecsSinceEpoch(std::llround(seconds * 1000) + kReferenceDate * 1000, kUtc);
}

QJsonObject encode(const ClipboardItem &item)
{
    const double date = static_cast<double>(item.date.toMSecsSinceEpoch() - kReferenceDate * 1000) / 1000;
    QJsonObject object{{QStringLiteral("id"), item.idText()},
                       {QStringLiteral("kind"), QString::fromLatin1(entry(item.kind).rawValue)},
                       {QStringLiteral("text"), item.text},
                       {QStringLiteral("paths"), QJsonArray::fromStringList(item.paths)},
                       {QStringLiteral("date"), date},
                       {QStringLiteral("image"), QJsonObject()}};
    const QString whole = item.original.wrappedValue ? item.original.wrappedValue->text : QString();
    if (item.pinned && !whole.isEmpty() && whole.size() <= kMostWhole)
        object.insert(kWhole, whole);
    return object;
}

std::optional<ClipboardItem> decode(const QJsonValue &value, bool pinned)
{
    const auto id = idOf(value[QStringLiteral("id")]);
    const auto kind = kindOf(value[QStringLiteral("kind")]);
    const QJsonValue text = value[QStringLiteral("text")];
    const auto paths = pathsOf(value[QStringLiteral("paths")]);
    const auto date = dateOf(value[QStringLiteral("date")]);
    if (!id || !kind || !text.isString() || !paths || !date)
        return std::nullopt;
    ClipboardItem item{*id, *kind, text.toString(), *paths, *date, {}};
    item.pinned = pinned;
    if (const QString whole = value[kWhole].toString(); pinned && !whole.isEmpty())
        item.original.wrappedValue = ClipboardOriginal{whole, {}};
    return item;
}

} // namespace

QString ClipboardItem::symbol() const { return QString::fromLatin1(entry(kind).symbol); }

QString ClipboardItem::preview() const { return text.left(kPreviewLength).simplified(); }

QImage ClipboardItem::thumbnail() const
{
    return image.wrappedValue ? image.wrappedValue->thumbnail() : QImage();
}

bool ClipboardItem::sameContent(const ClipboardItem &other) const
{
    if (kind != other.kind || text != other.text || paths != other.paths)
        return false;
    const auto &picture = image.wrappedValue;
    const auto &othersPicture = other.image.wrappedValue;
    if (paths.isEmpty() && picture && othersPicture)
        return picture->isSameAs(*othersPicture);
    return QStringView(wholeText()).trimmed() == QStringView(other.wholeText()).trimmed();
}

QString ClipboardItem::wholeText() const
{
    return original.wrappedValue && !original.wrappedValue->text.isNull() ? original.wrappedValue->text
                                                                          : text;
}

QByteArray encodeClipboardItems(const ClipboardItems &items) { return ClipboardEncoder().encode(items); }

QByteArray ClipboardEncoder::encode(const ClipboardItems &items)
{
    QHash<QUuid, QByteArray> entries;
    QByteArrayList list;
    for (const ClipboardItem &item : items) {
        QByteArray entry = m_entries.value(item.id);
        if (entry.isEmpty())
            entry = QJsonDocument(Kestrune::encode(item)).toJson(QJsonDocument::Compact);
        // A store that another program has written may name two items alike, of which neither is remembered.
        entries.insert(item.id, entries.contains(item.id) ? QByteArray() : entry);
        list.append(entry);
    }
    m_entries = std::move(entries);
    return '[' + list.join(',') + ']';
}

std::optional<ClipboardItems> decodeClipboardItems(const QByteArray &stored, bool pinned)
{
    const QJsonDocument document = QJsonDocument::fromJson(stored);
    if (!document.isArray())
        return std::nullopt;
    ClipboardItems items;
    for (const auto &value : document.array()) {
        const auto item = decode(value, pinned);
        if (!item)
            return std::nullopt;
        items.append(*item);
    }
    return items;
}

} // namespace Kestrune
