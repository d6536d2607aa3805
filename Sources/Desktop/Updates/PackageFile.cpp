#include "PackageFile.h"

#include <QCryptographicHash>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr qint64 kReading = qint64{256} * 1024; // Bytes at a time.

/// Nothing where the file is shorter.
QByteArray hashOf(int descriptor, qint64 size)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray piece(kReading, Qt::Uninitialized);
    for (qint64 at = 0; at < size;) {
        const auto wanted = static_cast<std::size_t>(std::min(kReading, size - at));
        const ssize_t read = ::pread(descriptor, piece.data(), wanted, at);
        if (read <= 0)
            return {};
        hash.addData(QByteArray::fromRawData(piece.constData(), read));
        at += read;
    }
    return hash.result();
}

} // namespace

bool isPackage(const QFile &file, const Release &release)
{
    struct stat is = {};
    return ::fstat(file.handle(), &is) == 0 && S_ISREG(is.st_mode) && is.st_uid == ::geteuid() &&
           is.st_nlink == 1 && is.st_size == release.size &&
           hashOf(file.handle(), release.size) == release.packageHash;
}

} // namespace Kestrune
