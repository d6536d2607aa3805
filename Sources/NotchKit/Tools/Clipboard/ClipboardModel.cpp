#include "ClipboardModel.h"

#include "NotchKit/NotchStrings.h"

#include <algorithm>
#include <array>

namespace Kestrune {

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

constexpr int kTicksPerPoll = 10; // Fast ticks: twice a second.
const QString kStoreKey = QStringLiteral("notch.clipboardItems");

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

PasteboardContent contentOf(const ClipboardItem &item)
{
    if (item.kind == ClipboardItem::Kind::text || item.kind == ClipboardItem::Kind::link)
        return item.text;
    if (item.image.wrappedValue)
        return item.image.wrappedValue->encoded();
    QList<QUrl> urls;
    for (const QString &path : item.paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

/// Drops the oldest pictures until the rest fits the budget.
void fitPictures(ClipboardItems &items)
{
    qint64 left = ClipboardModel::kPictureBudget;
    for (ClipboardItem &item : items) {
        auto &picture = item.image.wrappedValue;
        left -= picture ? picture->cost() : 0;
        if (left < 0)
            picture.reset();
    }
    items.removeIf([](const ClipboardItem &item) { return !isStored(item) && !item.image.wrappedValue; });
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
    const auto stored = m_defaults.object(kStoreKey);
    const auto *data = stored ? std::get_if<QByteArray>(&*stored) : nullptr;
    if (!data)
        return;
    if (const auto items = decodeClipboardItems(*data))
        m_items = *items;
}

void ClipboardModel::persist()
{
    Items stored;
    std::ranges::copy_if(items(), std::back_inserter(stored), isStored);
    m_defaults.setObject(kStoreKey, m_encoder.encode(stored));
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
    return visible;
}

void ClipboardModel::fastTick(qint64 count)
{
    if (count % kTicksPerPoll == 0 && m_settings.isEnabled(NotchTool::clipboard))
        poll();
}

bool ClipboardModel::isWanted() const
{
    return m_settings.clipboardHistory() && m_settings.isEnabled(NotchTool::clipboard);
}

void ClipboardModel::poll()
{
    const qint64 change = m_pasteboard.changeCount();
    if (change == m_lastChange)
        return;
    const bool wanted = isWanted();
    if (wanted && m_reads.isWaiting())
        return;
    m_lastChange = change;
    if (wanted)
        m_reads.start(&ClipboardModel::read, this, m_clock.now());
}

QCoro::Task<> ClipboardModel::read(QDateTime date)
{
    std::optional<Item> item = co_await readPasteboard(m_pasteboard, m_workers);
    if (!item || !isWanted())
        co_return;
    item->date = date;
    record(*item);
}

void ClipboardModel::record(Item item)
{
    Items recorded = items();
    if (!recorded.isEmpty() && recorded.first().sameContent(item))
        return;
    recorded.prepend(std::move(item));
    if (recorded.size() > kMostItems)
        recorded.resize(kMostItems);
    fitPictures(recorded);
    m_items = recorded;
    persist();
}

void ClipboardModel::copy(const Item &item)
{
    m_lastChange = m_pasteboard.write(contentOf(item));
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

void ClipboardModel::clear()
{
    m_items = Items();
    persist();
    m_defaults.removeDamagedCopies(); // In which the history would live on.
}

} // namespace Kestrune
