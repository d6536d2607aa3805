#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>
#include <QSet>
#include <QUrl>

namespace Kestrune {

class AirDrop;
class DragPasteboard;
class Workspace;

/// A file on the shelf as its tile shows it.
struct ShelfTile
{
    Q_GADGET
    Q_PROPERTY(QUrl url MEMBER url)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString symbol MEMBER symbol)

public:
    QUrl url;
    QString name;
    QString path;
    QString symbol; ///< Of its type.

    bool operator==(const ShelfTile &) const = default;
};

/// Files put aside to be used later: references only, oldest first, their paths kept in `shelfPaths`.
/// Main thread only; the files are looked at elsewhere.
class ShelfModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(QList<QUrl> items READ items NOTIFY itemsChanged)
    Q_PROPERTY(QList<Kestrune::ShelfTile> tiles READ tiles NOTIFY tilesChanged)

public:
    using Items = QList<QUrl>;

    /// Begins with the stored paths and drops those that no longer exist.
    ShelfModel(NotchSettings &settings, Workspace &workspace, AirDrop &sharing, DragPasteboard &drags,
               QObject *parent = nullptr);
    ~ShelfModel() override;

    const Items &items() const { return m_items.value(); }
    const QList<ShelfTile> &tiles() const { return m_tiles.value(); }

    /// Appends the file URLs among `urls` that are not on the shelf yet, in their order.
    Q_INVOKABLE void add(const QList<QUrl> &urls);

    /// Adds the files that were dropped on the notch just now, when they are known.
    Q_INVOKABLE void loadURLs() { m_drops.start(&ShelfModel::addDropped, this); }

    Q_INVOKABLE void remove(const QUrl &url);
    Q_INVOKABLE void clear();

    /// Looks for every item's file and then removes those without one.
    void prune();

    /// Sends every item to one of the user's devices; the number of the request, 0 without an item.
    Q_INVOKABLE int airDrop();

    /// Shows every item in the file manager.
    Q_INVOKABLE void reveal();

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void itemsChanged();
    void tilesChanged();

private:
    /// What a look at the files found.
    struct Findings
    {
        bool complete = false; ///< Not when a file's disk does not answer.
        QSet<QUrl> missing;
        QSet<QUrl> folders;
    };
    static Findings inspect(const Items &items);

    void load();
    void persist(const Items &items);
    void look();
    QCoro::Task<> lookAtFiles();
    void take(const Findings &found);
    QCoro::Task<> addDropped();
    QList<ShelfTile> computeTiles() const;

    NotchSettings &m_settings;
    Workspace &m_workspace;
    AirDrop &m_sharing;
    DragPasteboard &m_drags;
    bool m_lookAgain = false;
    bool m_pruning = false; ///< What the look misses goes.
    Worker m_files{"shelf"};
    Scope m_looks; ///< One at a time: a network folder may take its time.
    Scope m_drops;
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, Items, m_items, &ShelfModel::itemsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, QSet<QUrl>, m_folders)
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, QList<ShelfTile>, m_tiles, &ShelfModel::tilesChanged)
};

} // namespace Kestrune
