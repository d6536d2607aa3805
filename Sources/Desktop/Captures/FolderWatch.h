#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>

namespace Kestrune {

/// Tells what happens right inside some folders, through the kernel. For one thread. Where the kernel
/// offers nothing or no more of it, nothing is told.
class FolderWatch
{
public:
    struct Event
    {
        QString folder;
        QByteArray name;       ///< Of what it happened to; empty for the folder itself.
        bool isFolder = false; ///< It happened to a folder.
        bool lost = false;     ///< Too much happened: anything may have changed.
    };

    FolderWatch();
    ~FolderWatch();
    Q_DISABLE_COPY_MOVE(FolderWatch)

    /// What a poll waits on; -1 without any.
    int descriptor() const { return m_descriptor; }

    /// Watches these folders, or the nearest ones above that can be watched, and no others. Says whether
    /// these are others than before.
    bool setFolders(const QStringList &folders);

    /// What has happened since; waits for nothing.
    QList<Event> take();

private:
    int add(const QString &folder) const;

    int m_descriptor;
    QHash<int, QStringList> m_folders; ///< By the kernel's number; several paths may lead to one folder.
};

} // namespace Kestrune
