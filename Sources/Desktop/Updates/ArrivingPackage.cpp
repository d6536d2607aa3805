#include "ArrivingPackage.h"

#include "PackageFile.h"

#include <QLoggingCategory>

#include <unistd.h>

namespace Kestrune {

namespace {

Q_LOGGING_CATEGORY(packagesLog, "kestrune.packages", QtWarningMsg)

QString unfinishedName() { return QStringLiteral(".unfinished"); } // No package's name begins with a dot.

} // namespace

ArrivingPackage::ArrivingPackage(QString folder, Release release)
    : m_path(std::move(folder))
    , m_release(std::move(release))
{}

bool ArrivingPackage::open()
{
    return m_file.isOpen() || (m_folder.renew(m_path) && m_folder.makeFile(m_file, unfinishedName()));
}

bool ArrivingPackage::take(const QByteArray &piece)
{
    const std::lock_guard lock(m_mutex);
    if (!m_isBroken && !(open() && m_file.write(piece) == piece.size())) {
        m_isBroken = true;
        qCInfo(packagesLog, "the package was not saved: %s", qUtf8Printable(qt_error_string()));
    }
    return !m_isBroken;
}

Releases::Kept ArrivingPackage::keep(bool isWhole)
{
    const std::lock_guard lock(m_mutex);
    const Releases::Kept outcome = check(isWhole);
    if (outcome != Releases::Kept::kept && m_file.isOpen())
        m_folder.remove(unfinishedName());
    m_file.close();
    m_folder.close();
    return outcome;
}

Releases::Kept ArrivingPackage::check(bool isWhole)
{
    using Kept = Releases::Kept;
    if (m_isBroken)
        return Kept::notSaved;
    if (!isWhole)
        return Kept::notFetched;
    if (!m_file.isOpen())
        return Kept::notSigned;
    // What only the flush says of a full disk would be missed otherwise.
    if (::fsync(m_file.handle()) != 0 || !m_file.setPermissions(QFile::ReadOwner))
        return Kept::notSaved;
    if (!isPackage(m_file, m_release))
        return Kept::notSigned;
    return m_folder.rename(unfinishedName(), m_release.fileName()) ? Kept::kept : Kept::notSaved;
}

} // namespace Kestrune
