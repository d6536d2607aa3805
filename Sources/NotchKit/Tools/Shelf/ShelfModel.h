#pragma once

#include "Async/Scope.h"
#include "NotchKit/NotchSettings.h"
#include "NotchKit/ToolModel.h"
#include "ShelfLook.h"

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
    Q_PROPERTY(bool away MEMBER away)
    Q_PROPERTY(bool chosen MEMBER chosen)

public:
    QUrl url;
    QString name;
    QString path;
    QString symbol;    ///< Of its type.
    bool away = false; ///< Its disk or share cannot be reached now.
    bool chosen = false;

    bool operator==(const ShelfTile &) const = default;
};

/// Files put aside to be used later: references only, oldest first, their paths kept in `shelfPaths`.
/// Main thread only; the files are looked at elsewhere.
class ShelfModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(QList<QUrl> items READ items NOTIFY itemsChanged)
    Q_PROPERTY(QList<Kestrune::ShelfTile> tiles READ tiles NOTIFY tilesChanged)
    /// What is being dragged over the notch is known to be no files.
    Q_PROPERTY(bool refusesDrag READ refusesDrag NOTIFY refusesDragChanged)

public:
    using Items = QList<QUrl>;

    /// Begins with the stored paths and drops those that no longer exist.
    ShelfModel(NotchSettings &settings, Workspace &workspace, AirDrop &sharing, DragPasteboard &drags,
               QObject *parent = nullptr);
    ~ShelfModel() override;

    const Items &items() const { return m_items.value(); }
    const QList<ShelfTile> &tiles() const { return m_tiles.value(); }
    bool refusesDrag() const { return m_refusesDrag; }

    /// Appends the file URLs among `urls` that are not on the shelf yet, in their order.
    Q_INVOKABLE void add(const QList<QUrl> &urls);

    /// Adds the files that were dropped on the notch just now, when they are known.
    Q_INVOKABLE void loadURLs() { m_drops.start(&ShelfModel::addDropped, this); }

    /// A drag came over the notch or moved there.
    Q_INVOKABLE void followDrag();

    Q_INVOKABLE void remove(const QUrl &url);

    /// Removes the item, and with one that is chosen all that are.
    Q_INVOKABLE void removeWith(const QUrl &url);

    Q_INVOKABLE void clear();

    /// Chooses the item alone; with Control, it joins or leaves those that are chosen; with Shift, all from
    /// the one that was chosen last are.
    Q_INVOKABLE void choose(const QUrl &url, int modifiers);
    Q_INVOKABLE void chooseAll();
    Q_INVOKABLE void chooseNone();

    /// What leaves with the item when it is dragged: it, or all that are chosen when it is one of them. Files
    /// that cannot be reached stay.
    Q_INVOKABLE QList<QUrl> draggedWith(const QUrl &url) const;

    /// Looks for every item's file and then removes those that were deleted or moved. One whose disk or share
    /// is away stays.
    void prune();

    /// Sends the chosen items, without any every item, to one of the user's devices; the number of the
    /// request, 0 without an item that can be reached.
    Q_INVOKABLE int airDrop();

    /// Shows the chosen items, without any every item, in the file manager.
    Q_INVOKABLE void reveal();

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void itemsChanged();
    void tilesChanged();
    void refusesDragChanged();

private:
    void load();
    void persist(const Items &items);
    void look();
    QCoro::Task<> lookAtFiles();
    void take(const ShelfFindings &found);
    QCoro::Task<> addDropped();
    QCoro::Task<> awaitDragged();
    void remove(const QSet<QUrl> &urls);
    void chooseTo(const QUrl &url);
    Items wanted() const;
    QList<ShelfTile> computeTiles() const;

    NotchSettings &m_settings;
    Workspace &m_workspace;
    AirDrop &m_sharing;
    DragPasteboard &m_drags;
    bool m_lookAgain = false;
    bool m_pruning = false; ///< What the look misses goes.
    QUrl m_lastChosen;
    ShelfLook m_files;
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, Items, m_items, &ShelfModel::itemsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, QSet<QUrl>, m_folders)
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, QSet<QUrl>, m_away)
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, QSet<QUrl>, m_chosen)
    Q_OBJECT_BINDABLE_PROPERTY(ShelfModel, QList<ShelfTile>, m_tiles, &ShelfModel::tilesChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(ShelfModel, bool, m_refusesDrag, false,
                                         &ShelfModel::refusesDragChanged)
    Scope m_looks; ///< One at a time: a network folder may take its time.
    Scope m_drops;
    Scope m_drag;
};

} // namespace Kestrune
