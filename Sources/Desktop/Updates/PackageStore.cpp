#include "PackageStore.h"

#include <QDir>
#include <QLoggingCategory>
#include <QSaveFile>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(packagesLog, "kestrune.packages", QtWarningMsg)

} // namespace

PackageStore::PackageStore(QString folder, ReleaseKey key)
    : m_folder(std::move(folder))
    , m_key(std::move(key))
{}

QString PackageStore::path(const Release &release) const
{
    return QDir(m_folder).filePath(release.fileName());
}

bool PackageStore::holds(const Release &release) const
{
    QFile file(path(release));
    return file.size() == release.size && file.open(QIODevice::ReadOnly) &&
           m_key.hasSigned(file.readAll(), release.packageSignature);
}

Releases::Kept PackageStore::keep(const Release &release, const QByteArray &package) const
{
    if (!m_key.hasSigned(package, release.packageSignature))
        return Kept::notSigned;
    QDir(m_folder).removeRecursively();
    QDir().mkpath(m_folder);
    QSaveFile file(path(release));
    // What only the flush says of a full disk is forgotten by the commit.
    const bool isSaved = file.open(QIODevice::WriteOnly) && file.write(package) == package.size() &&
                         file.flush() && file.commit();
    if (!isSaved)
        qCInfo(packagesLog, "the package was not saved: %s", qUtf8Printable(file.errorString()));
    return isSaved ? Kept::kept : Kept::notSaved;
}

} // namespace Kestrune
