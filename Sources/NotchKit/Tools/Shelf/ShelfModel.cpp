#include "ShelfModel.h"

#include "NotchKit/AirDrop.h"
#include "NotchKit/FileSymbols.h"
#include "NotchKit/Platform/DragPasteboard.h"
#include "NotchKit/Platform/Workspace.h"

#include <QFileInfo>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestLook = 10s;
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

void ShelfModel::remove(const QUrl &url)
{
    Items left = items();
    left.removeAll(url);
    persist(left);
}

void ShelfModel::clear() { persist({}); }

void ShelfModel::persist(const Items &items)
{
    m_items = items;
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
        const auto work = [files = items()] { return inspect(files); };
        const QFuture<Findings> looking = m_files.run(kLongestLook, work);
        const Findings found = co_await until(looking);
        take(found);
    }
}

ShelfModel::Findings ShelfModel::inspect(const Items &items)
{
    Findings found;
    found.complete = true;
    for (const QUrl &url : items) {
        const QFileInfo file(url.toLocalFile());
        if (!file.exists())
            found.missing.insert(url);
        else if (file.isDir())
            found.folders.insert(url);
    }
    return found;
}

void ShelfModel::take(const Findings &found)
{
    const bool prunes = std::exchange(m_pruning, false);
    if (!found.complete)
        return;
    m_folders = found.folders;
    if (!prunes || found.missing.isEmpty())
        return;
    Items left = items();
    left.removeIf([&](const QUrl &url) { return found.missing.contains(url); });
    persist(left);
}

QList<ShelfTile> ShelfModel::computeTiles() const
{
    QList<ShelfTile> tiles;
    const QSet<QUrl> folders = m_folders;
    for (const QUrl &url : m_items.value()) {
        const QString path = url.toLocalFile();
        const QString name = url.adjusted(QUrl::StripTrailingSlash).fileName();
        tiles.append({url, name, path, folders.contains(url) ? QStringLiteral("folder") : fileSymbol(name)});
    }
    return tiles;
}

int ShelfModel::airDrop() { return items().isEmpty() ? 0 : m_sharing.send(items()); }

void ShelfModel::reveal() { m_workspace.reveal(items()); }

void ShelfModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible == NotchTool::shelf)
        prune();
}

void ShelfModel::tick(const ClockTick &tick)
{
    if (tick.anyExpanded && tick.seconds % kPruneInterval == 0)
        prune();
}

} // namespace Kestrune
