#include "ShelfModel.h"

#include "NotchKit/AirDrop.h"
#include "NotchKit/FileSymbols.h"
#include "NotchKit/Platform/DragPasteboard.h"
#include "NotchKit/Platform/Workspace.h"

#include <algorithm>

namespace Kestrune {

namespace {

constexpr qint64 kPruneInterval = 30; // Seconds.

QStringList pathsOf(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls)
        paths.append(url.toLocalFile());
    return paths;
}

} // namespace

ShelfModel::ShelfModel(NotchSettings &settings, Workspace &workspace, AirDrop &sharing, DragPasteboard &drags,
                       QObject *parent)
    : ToolModel(NotchTool::shelf, parent)
    , m_settings(settings)
    , m_workspace(workspace)
    , m_sharing(sharing)
    , m_drags(drags)
{
    load();
    m_tiles.setBinding([this] { return computeTiles(); });
    connect(&settings, &NotchSettings::shelfPathsChanged, this, &ShelfModel::load);
}

ShelfModel::~ShelfModel() = default;

/// At the start, and when the setting was changed by another hand than this one's.
void ShelfModel::load()
{
    const QStringList paths = m_settings.shelfPaths();
    if (paths == pathsOf(items()))
        return;
    Items stored;
    for (const QString &path : paths)
        stored.append(QUrl::fromLocalFile(path));
    m_items = stored;
    prune();
}

void ShelfModel::add(const QList<QUrl> &urls)
{
    Items all = items();
    QSet<QUrl> known(all.cbegin(), all.cend());
    for (const QUrl &url : urls) {
        if (!url.isLocalFile() || known.contains(url))
            continue;
        known.insert(url);
        all.append(url);
    }
    persist(all);
    look();
}

QCoro::Task<> ShelfModel::addDropped()
{
    const QFuture<Items> asked = m_drags.fileUrls();
    const Items dropped = co_await until(asked);
    add(dropped);
}

void ShelfModel::followDrag()
{
    const QFuture<Items> asked = m_drags.fileUrls();
    m_refusesDrag = asked.isFinished() && asked.result().isEmpty();
    if (!asked.isFinished() && !m_drag.isWaiting())
        m_drag.start(&ShelfModel::awaitDragged, this);
}

/// The pointer may rest until the files are known.
QCoro::Task<> ShelfModel::awaitDragged()
{
    const QFuture<Items> asked = m_drags.fileUrls();
    const Items dragged = co_await until(asked);
    m_refusesDrag = dragged.isEmpty();
}

void ShelfModel::remove(const QUrl &url) { remove(QSet<QUrl>{url}); }

void ShelfModel::removeWith(const QUrl &url)
{
    remove(m_chosen.value().contains(url) ? m_chosen.value() : QSet<QUrl>{url});
}

void ShelfModel::remove(const QSet<QUrl> &urls)
{
    Items left = items();
    left.removeIf([&](const QUrl &url) { return urls.contains(url); });
    persist(left);
}

void ShelfModel::clear() { persist({}); }

void ShelfModel::persist(const Items &items)
{
    m_items = items;
    m_chosen = QSet<QUrl>(m_chosen).intersect(QSet<QUrl>(items.cbegin(), items.cend()));
    m_settings.setShelfPaths(pathsOf(items));
}

void ShelfModel::prune()
{
    m_pruning = true;
    look();
}

void ShelfModel::look()
{
    m_lookAgain = true;
    if (!m_looks.isWaiting())
        m_looks.start(&ShelfModel::lookAtFiles, this);
}

QCoro::Task<> ShelfModel::lookAtFiles()
{
    while (std::exchange(m_lookAgain, false) && !items().isEmpty()) {
        const Items files = items();
        const QStringList mounts = m_settings.shelfMounts();
        const ShelfFindings found = co_await m_files.lookAt(files, mounts);
        take(found);
    }
}

void ShelfModel::take(const ShelfFindings &found)
{
    m_folders = found.folders;
    m_away = found.away;
    m_settings.setShelfMounts(found.mounts);
    if (std::exchange(m_pruning, false) && !found.gone.isEmpty())
        remove(found.gone);
}

void ShelfModel::choose(const QUrl &url, int modifiers)
{
    if (modifiers & Qt::ShiftModifier) {
        chooseTo(url);
        return;
    }
    m_lastChosen = url;
    QSet<QUrl> chosen = m_chosen;
    if (!(modifiers & Qt::ControlModifier))
        chosen = {url};
    else if (!chosen.remove(url))
        chosen.insert(url);
    m_chosen = chosen;
}

/// All from the one that was chosen last; it stays the end to count from.
void ShelfModel::chooseTo(const QUrl &url)
{
    const auto [first, last] = std::minmax({std::max(items().indexOf(m_lastChosen), qsizetype{0}),
                                            std::max(items().indexOf(url), qsizetype{0})});
    const Items range = items().mid(first, last - first + 1);
    m_chosen = QSet<QUrl>(range.cbegin(), range.cend());
}

void ShelfModel::chooseAll() { m_chosen = QSet<QUrl>(items().cbegin(), items().cend()); }

void ShelfModel::chooseNone()
{
    m_chosen = QSet<QUrl>();
    m_lastChosen = QUrl();
}

QList<QUrl> ShelfModel::draggedWith(const QUrl &url) const
{
    Items dragged = m_chosen.value().contains(url) ? wanted() : Items{url};
    dragged.removeIf([this](const QUrl &file) { return m_away.value().contains(file); });
    return dragged;
}

/// The chosen items, or every item.
ShelfModel::Items ShelfModel::wanted() const
{
    Items all = items();
    if (!m_chosen.value().isEmpty())
        all.removeIf([this](const QUrl &url) { return !m_chosen.value().contains(url); });
    return all;
}

QList<ShelfTile> ShelfModel::computeTiles() const
{
    QList<ShelfTile> tiles;
    const QSet<QUrl> folders = m_folders, away = m_away, chosen = m_chosen;
    for (const QUrl &url : m_items.value()) {
        const QString path = url.toLocalFile();
        const QString name = url.adjusted(QUrl::StripTrailingSlash).fileName();
        const QString symbol = folders.contains(url) ? QStringLiteral("folder") : fileSymbol(name);
        tiles.append({url, name, path, symbol, away.contains(url), chosen.contains(url)});
    }
    return tiles;
}

int ShelfModel::airDrop()
{
    Items sent = wanted();
    sent.removeIf([this](const QUrl &file) { return m_away.value().contains(file); });
    return sent.isEmpty() ? 0 : m_sharing.send(sent);
}

void ShelfModel::reveal() { m_workspace.reveal(wanted()); }

void ShelfModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    chooseNone();
    if (visible != NotchTool::shelf)
        return;
    prune();
    m_sharing.look();
}

void ShelfModel::tick(const ClockTick &tick)
{
    if (tick.anyExpanded && tick.seconds % kPruneInterval == 0)
        prune();
}

} // namespace Kestrune
