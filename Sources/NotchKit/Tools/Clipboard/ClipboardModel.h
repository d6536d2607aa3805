#pragma once

#include "Async/Scope.h"
#include "ClipboardReader.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>

namespace Kestrune {

/// The history of what the user copied, newest first, at most 60 items and those that are pinned; kept in the
/// defaults under "notch.clipboardItems" and "notch.clipboardPinned", without the pictures that came from no
/// file. What the newest copy was is offered on when the program that it is of ends. Main thread only.
class ClipboardModel : public ToolModel
{
    Q_OBJECT
    /// The items that pass the filter and the query, the pinned ones before the others.
    Q_PROPERTY(QList<Kestrune::ClipboardItem> visible READ visible NOTIFY visibleChanged)
    Q_PROPERTY(QList<Kestrune::ClipboardItem> items READ items NOTIFY itemsChanged)
    Q_PROPERTY(QStringList filterTitles READ filterTitles CONSTANT)
    Q_PROPERTY(Kestrune::ClipboardModel::Filter filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)

public:
    using Item = ClipboardItem;
    using Items = ClipboardItems;

    enum class Filter { all, text, links, images, pdfs };
    Q_ENUM(Filter)

    static constexpr int kMostItems = 60;
    /// What all kept pictures may take in memory together, in bytes. Beyond it the oldest go: one that came
    /// from a file is dropped from its item, another goes with its item.
    static constexpr qint64 kPictureBudget = qint64{256} * 1024 * 1024;
    /// The same of what texts are beyond what their items show. The oldest are then what they show.
    static constexpr qint64 kOriginalBudget = qint64{64} * 1024 * 1024;

    ClipboardModel(NotchSettings &settings, UserDefaults &defaults, Clock &clock, Pasteboard &pasteboard,
                   std::shared_ptr<PictureReader> pictures, QObject *parent = nullptr);
    ~ClipboardModel() override;

    const Items &items() const { return m_items.value(); }
    const Items &visible() const { return m_visible.value(); }
    Filter filter() const { return m_filter; }
    void setFilter(Filter filter) { m_filter = filter; }
    QString query() const { return m_query; }
    void setQuery(const QString &query) { m_query = query; }

    /// Raw value ("pdfs") and title of a filter.
    static QString rawValue(Filter filter);
    static QString title(Filter filter);
    static QStringList filterTitles();

    /// One look at the pasteboard: what was copied since the last one is read and, when that is done,
    /// recorded. One content is read at a time; another look follows, for a copy made meanwhile. While the
    /// hub runs with this tool, each change of the pasteboard leads to one.
    void poll();

    /// Puts the item back on the pasteboard, in every form that it came in, and moves it to the top.
    void copy(const Item &item);

    /// Deletes every item with that id.
    void remove(const Item &item);

    /// The same by id, for the views; unknown ids are ignored.
    Q_INVOKABLE void copy(const QString &id);
    Q_INVOKABLE void remove(const QString &id);

    /// A pinned item stays beyond the 60 and when the history is cleared. Unknown ids are ignored.
    Q_INVOKABLE void setPinned(const QString &id, bool pinned);

    /// Deletes all but the pinned items.
    Q_INVOKABLE void clear();

    void hubStarted() override;
    void hubStopped() override;

Q_SIGNALS:
    void itemsChanged();
    void visibleChanged();
    void filterChanged();
    void queryChanged();

private:
    bool isWanted() const;
    void load();
    Items stored(const QString &key, bool pinned) const;
    void look();
    void offerOrphan();
    void persist();
    void persistSoon();
    QCoro::Task<> read(QDateTime date);
    void record(Item item);
    Items computeVisible() const;
    std::optional<Item> find(const QString &id) const;

    NotchSettings &m_settings;
    UserDefaults &m_defaults;
    Clock &m_clock;
    Pasteboard &m_pasteboard;
    bool m_isWatching = false; ///< The hub runs.
    qint64 m_lastChange;
    QUuid m_current; ///< The item of what is on the pasteboard, as far as it was read.
    ClipboardWorkers m_workers;
    ClipboardEncoder m_encoder;
    ClipboardEncoder m_pinnedEncoder;
    QByteArray m_pinnedStored;                           ///< As last written or read.
    std::optional<std::chrono::nanoseconds> m_persisted; ///< When that was.
    std::unique_ptr<RunningTimer> m_later;               ///< Until what a burst of copies left is written.
    Scope m_reads;                                       ///< One at a time.
    Q_OBJECT_BINDABLE_PROPERTY(ClipboardModel, Items, m_items, &ClipboardModel::itemsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(ClipboardModel, Filter, m_filter, Filter::all,
                                         &ClipboardModel::filterChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ClipboardModel, QString, m_query, &ClipboardModel::queryChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ClipboardModel, Items, m_visible, &ClipboardModel::visibleChanged)
};

} // namespace Kestrune
