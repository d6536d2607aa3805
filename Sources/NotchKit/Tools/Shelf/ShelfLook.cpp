#include "ShelfLook.h"

#include <QFile>
#include <QMap>

#include <cerrno>
#include <optional>

#include <sys/stat.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestLook = 10s;

enum class Sight { folder, file, nothing, refused };

Sight sightOf(const QString &path)
{
    struct stat status
    {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0)
        return S_ISDIR(status.st_mode) ? Sight::folder : Sight::file;
    return errno == ENOENT || errno == ENOTDIR ? Sight::nothing : Sight::refused;
}

/// Which of `mounts` the file was last seen in; the innermost.
QString lastRootOf(const QString &path, const QStringList &mounts)
{
    QString root;
    for (const QString &mount : mounts) {
        if (mount.size() > root.size() && liesIn(path, mount))
            root = mount;
    }
    return root;
}

bool isAway(const QString &path, const QString &root, const QStringList &mounts)
{
    const QString last = lastRootOf(path, mounts);
    return last.size() > root.size() || (!root.isEmpty() && sightOf(root) != Sight::folder);
}

void keepMount(ShelfFindings &found, const QString &root)
{
    if (root.size() > 1 && !found.mounts.contains(root))
        found.mounts.append(root);
}

/// The files of one mounted folder.
ShelfFindings inspect(const QList<QUrl> &files, const QString &root, const QStringList &mounts)
{
    ShelfFindings found;
    for (const QUrl &file : files) {
        const QString path = file.toLocalFile();
        const Sight sight = sightOf(path);
        const bool away = sight == Sight::refused || (sight == Sight::nothing && isAway(path, root, mounts));
        if (sight == Sight::folder)
            found.folders.insert(file);
        else if (away)
            found.away.insert(file);
        else if (sight == Sight::nothing)
            found.gone.insert(file);
        keepMount(found, away ? lastRootOf(path, mounts) : QString());
        if (sight == Sight::folder || sight == Sight::file)
            keepMount(found, root);
    }
    return found;
}

/// Of a disk that does not answer.
ShelfFindings awayAll(const QList<QUrl> &files, const QString &root)
{
    ShelfFindings found;
    found.away = QSet<QUrl>(files.cbegin(), files.cend());
    keepMount(found, root);
    return found;
}

} // namespace

void ShelfFindings::unite(const ShelfFindings &other)
{
    gone.unite(other.gone);
    away.unite(other.away);
    folders.unite(other.folders);
    mounts.append(other.mounts);
    mounts.removeDuplicates();
    mounts.sort();
}

QCoro::Task<ShelfFindings> ShelfLook::lookAt(QList<QUrl> files, QStringList mounts)
{
    const QFuture<MountTable> asked = m_disks.run(kLongestLook, [] { return MountTable::current(); });
    const MountTable table = co_await until(asked);
    QMap<QString, QList<QUrl>> byRoot;
    for (const QUrl &file : files)
        byRoot[table.rootOf(file.toLocalFile())].append(file);

    ShelfFindings all;
    for (auto group = byRoot.cbegin(); group != byRoot.cend(); ++group) {
        const QString &root = group.key();
        const QList<QUrl> &own = group.value();
        if (m_hanging.contains(root) && m_hanging[root].use_count() > 1) {
            all.unite(awayAll(own, root));
            continue;
        }
        const Token token = std::make_shared<bool>(true);
        const auto work = [own, root, mounts, token] { return std::optional(inspect(own, root, mounts)); };
        const QFuture<std::optional<ShelfFindings>> looking = m_disks.run(kLongestLook, work);
        const std::optional<ShelfFindings> found = co_await until(looking);
        if (found)
            m_hanging.remove(root);
        else
            m_hanging.insert(root, token);
        all.unite(found ? *found : awayAll(own, root));
    }
    co_return all;
}

} // namespace Kestrune
