#pragma once

#include <QFile>
#include <QString>

namespace Kestrune {

/// The folder that packages are kept in, held by its descriptor: whatever its path leads to meanwhile, what
/// is done here is done in that folder. It is this user's alone; links are not followed. Blocks; one thread
/// at a time.
class PackageFolder
{
public:
    PackageFolder() = default;
    ~PackageFolder() { close(); }
    Q_DISABLE_COPY_MOVE(PackageFolder)

    /// Whether the folder at the path is one to trust, and now open.
    bool open(const QString &path);

    /// Makes a fresh one there, in place of the folder that is there with all that is in it. Anything else
    /// that is in the way stays, and is an error.
    bool renew(const QString &path);

    void close();

    bool openFile(QFile &file, const QString &name) const; ///< To be read.
    bool makeFile(QFile &file, const QString &name) const; ///< To be written and read; there is none so far.
    bool rename(const QString &from, const QString &to) const;
    void remove(const QString &name) const;

private:
    int m_descriptor = -1;
};

} // namespace Kestrune
