#include "ClipboardModel.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/Platform/OfferedPictures.h"

#include <algorithm>
#include <array>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

struct FilterEntry
{
    const char *rawValue;
    const char *title;
    std::optional<ClipboardItem::Kind> admitted; ///< Nothing: every kind.
};

constexpr std::array kFilters{
    //: What the list shows: copies of every kind.
    FilterEntry{"all", QT_TRANSLATE_NOOP("notch", "All"), std::nullopt},
    //: What the list shows: the copies that are texts.
    FilterEntry{"text", QT_TRANSLATE_NOOP("notch", "Text"), ClipboardItem::Kind::text},
    FilterEntry{"links", QT_TRANSLATE_NOOP("notch", "Links"), ClipboardItem::Kind::link},
    FilterEntry{"images", QT_TRANSLATE_NOOP("notch", "Images"), ClipboardItem::Kind::image},
    FilterEntry{"pdfs", QT_TRANSLATE_NOOP("notch", "PDFs"), ClipboardItem::Kind::pdf},
};

constexpr auto kBetweenWrites = 100ms; // Of copies in a burst.
const QString kStoreKey = QStringLiteral("notch.clipboardItems");
const QString kPinnedKey = QStringLiteral("notch.clipboardPinned");

const FilterEntry &entry(ClipboardModel::Filter filter)
{
    return kFilters.at(static_cast<std::size_t>(filter));
}

QString trimmedBlanks(QStringView text)
{
    const auto isBlank = [](QChar character) {
        return character == QLatin1Char('\t') || character.category() == QChar::Separator_Space;
    };
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text.toString();
}

bool isStored(const ClipboardItem &item)
{
    return item.kind != ClipboardItem::Kind::image || !item.paths.isEmpty();
}

PasteboardContent contentOf(const ClipboardItem &item, const std::shared_ptr<PictureReader> &pictures)
{
    PasteboardContent content;
    if (item.kind == ClipboardItem::Kind::text || item.kind == ClipboardItem::Kind::link)
        content.text = item.wholeText();
    if (item.original.wrappedValue)
        content.html = item.original.wrappedValue->html;
    for (const QString &path : item.paths)
        content.files.append(QUrl::fromLocalFile(path));
    if (const auto &picture = item.image.wrappedValue)
        content.pictures =
            offeredPictures({picture->type(), [kept = *picture] { return kept.encoded().data; }}, pictures);
    return content;
}

/// Drops what the oldest items have of a kind until the rest fits the budget. Those that are pinned keep it.
template <typename Part>
void fit(ClipboardItems &items, CodableIgnored<Part> ClipboardItem::*part, qint64 budget)
{
    for (const bool pinned : {true, false}) {
        for (ClipboardItem &item : items) {
            auto &value = (item.*part).wrappedValue;
            if (!value || item.pinned != pinned)
                continue;
            budget -= value->cost();
            if (budget < 0 && !pinned)
                value.reset();
        }
    }
}

void fitMemory(ClipboardItems &items)
{
    fit(items, &ClipboardItem::image, ClipboardModel::kPictureBudget);
    fit(items, &ClipboardItem::original, ClipboardModel::kOriginalBudget);
    items.removeIf([](const ClipboardItem &item) { return !isStored(item) && !item.image.wrappedValue; });
}

/// Drops the oldest of those that are not pinned.
void fitCount(ClipboardItems &items)
{
    int kept = 0;
    items.removeIf(
        [&](const ClipboardItem &item) { return !item.pinned && ++kept > ClipboardModel::kMostItems; });
}

} // namespace

ClipboardModel::ClipboardModel(NotchSettings &settings, UserDefaults &defaults, Clock &clock,
                               Pasteboard &pasteboard, std::shared_ptr<PictureReader> pictures,
                               QObject *parent)
    : ToolModel(NotchTool::clipboard, parent)
    , m_settings(settings)
    , m_defaults(defaults)
    , m_clock(clock)
    , m_pasteboard(pasteboard)
    , m_lastChange(pasteboard.changeCount())
    , m_workers{.pictures = std::move(pictures)}
{
    load();
    m_visible.setBinding([this] { return computeVisible(); });
    connect(&pasteboard, &Pasteboard::changed, this, &ClipboardModel::look);
    connect(&settings, &NotchSettings::toolsChanged, this, &ClipboardModel::look);
}

ClipboardModel::~ClipboardModel()
{
    if (m_later)
        persist();
}

QString ClipboardModel::rawValue(Filter filter) { return QString::fromLatin1(entry(filter).rawValue); }

QString ClipboardModel::title(Filter filter) { return notchStrings(entry(filter).title); }

QStringList ClipboardModel::filterTitles()
{
    QStringList titles;
    for (const FilterEntry &filter : kFilters)
        titles.append(notchStrings(filter.title));
    return titles;
}

void ClipboardModel::load()
{
    Items items = stored(kStoreKey, false);
    const Items pinned = stored(kPinnedKey, true);
    for (const Item &item : pinned) {
        items.removeIf([&](const Item &other) { return other.id == item.id; }); // Of a write cut in two.
        const auto after =
            std::ranges::find_if(items, [&](const Item &other) { return other.date < item.date; });
        items.insert(after, item);
    }
    m_pinnedStored = m_pinnedEncoder.encode(pinned);
    m_items = items;
}

ClipboardItems ClipboardModel::stored(const QString &key, bool pinned) const
{
    const auto stored = m_defaults.object(key);
    const auto *data = stored ? std::get_if<QByteArray>(&*stored) : nullptr;
    return data ? decodeClipboardItems(*data, pinned).value_or(Items()) : Items();
}

/// The first copy at once; what follows in a burst, together.
void ClipboardModel::persistSoon()
{
    if (m_later)
        return;
    const auto since = m_persisted ? m_clock.uptime() - *m_persisted : kBetweenWrites;
    if (since >= kBetweenWrites)
        persist();
    else
        m_later = m_clock.after(std::chrono::ceil<std::chrono::milliseconds>(kBetweenWrites - since),
                                [this] { persist(); });
}

void ClipboardModel::persist()
{
    m_later.reset();
    m_persisted = m_clock.uptime();
    Items history;
    Items pinned;
    for (const Item &item : items()) {
        if (isStored(item))
            (item.pinned ? pinned : history).append(item);
    }
    const QByteArray encoded = m_pinnedEncoder.encode(pinned);
    const auto storePinned = [&] {
        if (encoded != m_pinnedStored)
            m_defaults.setObject(kPinnedKey, encoded);
        m_pinnedStored = encoded;
    };
    // One that moves from the one to the other is at no moment in neither.
    if (encoded.size() > m_pinnedStored.size())
        storePinned();
    m_defaults.setObject(kStoreKey, m_encoder.encode(history));
    storePinned();
}

ClipboardItems ClipboardModel::computeVisible() const
{
    const auto admitted = entry(m_filter).admitted;
    const QString wanted = trimmedBlanks(m_query.value()).toLower();
    Items visible;
    std::ranges::copy_if(m_items.value(), std::back_inserter(visible), [&](const Item &item) {
        return (!admitted || item.kind == *admitted) &&
               (wanted.isEmpty() || item.text.toLower().contains(wanted));
    });
    std::stable_partition(visible.begin(), visible.end(), [](const Item &item) { return item.pinned; });
    return visible;
}

void ClipboardModel::hubStarted()
{
    m_isWatching = true;
    look();
}

void ClipboardModel::hubStopped()
{
    m_isWatching = false;
    if (m_later)
        persist();
}

void ClipboardModel::look()
{
    if (m_isWatching && m_settings.isEnabled(NotchTool::clipboard))
        poll();
}

bool ClipboardModel::isWanted() const
{
    return m_settings.clipboardHistory() && m_settings.isEnabled(NotchTool::clipboard);
}

void ClipboardModel::poll()
{
    const qint64 change = m_pasteboard.changeCount();
    if (change == m_lastChange) {
        offerOrphan();
        return;
    }
    const bool wanted = isWanted();
    if (wanted && m_reads.isWaiting())
        return;
    m_lastChange = change;
    m_current = QUuid();
    if (wanted)
        m_reads.start(&ClipboardModel::read, this, m_clock.now());
}

QCoro::Task<> ClipboardModel::read(QDateTime date)
{
    std::optional<Item> item =
        co_await readPasteboard(m_pasteboard, m_workers, m_settings.ignoredClipboardPrograms());
    if (item && isWanted()) {
        item->date = date;
        record(*item);
    }
    look();
}

void ClipboardModel::record(Item item)
{
    Items recorded = items();
    const bool isSame = !recorded.isEmpty() && recorded.first().sameContent(item);
    if (isSame) { // But for what is beside it, or in a file that has changed.
        recorded.first().image = item.image;
        recorded.first().original = item.original;
    } else {
        recorded.prepend(std::move(item));
    }
    fitCount(recorded);
    fitMemory(recorded);
    m_items = recorded;
    m_current = recorded.isEmpty() ? QUuid() : recorded.first().id;
    if (!isSame)
        persistSoon();
}

void ClipboardModel::offerOrphan()
{
    if (!m_pasteboard.isOrphaned() || m_current.isNull() || m_reads.isWaiting() || !isWanted())
        return;
    const auto item = std::ranges::find(items(), m_current, &Item::id);
    if (item != items().end())
        m_lastChange = m_pasteboard.write(contentOf(*item, m_workers.pictures));
}

void ClipboardModel::copy(const Item &item)
{
    m_lastChange = m_pasteboard.write(contentOf(item, m_workers.pictures));
    m_current = item.id;
    Items moved = items();
    moved.removeIf([&](const Item &other) { return other.id == item.id; });
    moved.prepend(item);
    m_items = moved;
    persist();
}

void ClipboardModel::remove(const Item &item)
{
    Items left = items();
    left.removeIf([&](const Item &other) { return other.id == item.id; });
    m_items = left;
    persist();
}

std::optional<ClipboardItem> ClipboardModel::find(const QString &id) const
{
    const auto found = std::ranges::find(items(), id, &Item::idText);
    return found == items().end() ? std::nullopt : std::optional(*found);
}

void ClipboardModel::copy(const QString &id)
{
    if (const auto item = find(id))
        copy(*item);
}

void ClipboardModel::remove(const QString &id)
{
    if (const auto item = find(id))
        remove(*item);
}

void ClipboardModel::setPinned(const QString &id, bool pinned)
{
    Items changed = items();
    const auto found = std::ranges::find(changed, id, &Item::idText);
    if (found == changed.end())
        return;
    found->pinned = pinned;
    m_items = changed;
    persist();
}

void ClipboardModel::clear()
{
    Items left = items();
    left.removeIf([](const Item &item) { return !item.pinned; });
    m_items = left;
    persist();
    m_defaults.removeDamagedCopies(); // In which the history would live on.
}

} // namespace Kestrune
