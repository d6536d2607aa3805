#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace Kestrune {

/// What is mounted, to tell a file that was deleted from one whose disk or share is away. On any thread.
class MountTable
{
public:
    MountTable() = default;

    /// Takes the lines of /proc/self/mountinfo (proc_pid_mountinfo(5)). Those that only wait to be mounted on
    /// use count as not mounted.
    explicit MountTable(const QByteArray &lines);

    /// What is mounted now. The kernel answers without a look at the disks.
    static MountTable current();

    /// The mounted folder that the file of that absolute path lies in: the innermost mount point, or, where
    /// one mount shows the shares of all servers, the share's folder in it. Empty where nothing is known.
    QString rootOf(const QString &path) const;

private:
    QStringList m_points;
    QStringList m_collections; ///< Of the points, those with a folder for each share.
};

/// Whether `path` is `folder` or lies below it.
bool liesIn(const QString &path, const QString &folder);

} // namespace Kestrune
