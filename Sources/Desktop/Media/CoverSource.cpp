#include "CoverSource.h"

#include "Log.h"
#include "NotchKit/Platform/PlayerScripts.h"

#include <QCryptographicHash>
#include <QFile>
#include <QUrl>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

/// A device or a pipe that bears a cover's name would never end.
ScriptOutcome readFile(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        qCInfo(playersLog, "a cover cannot be read: %s", std::strerror(errno));
        return ScriptFailed();
    }
    struct stat status
    {};
    QFile file;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size <= kMostCoverBytes &&
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return file.read(kMostCoverBytes);
    ::close(descriptor);
    return ScriptFailed();
}

/// "data:image/png;base64,…", or without the word base64 percent-encoded.
ScriptOutcome decodeData(const QString &address)
{
    constexpr qint64 kMostCharacters = kMostCoverBytes / 3 * 4 + 1000;
    const qsizetype comma = address.indexOf(QLatin1Char(','));
    if (comma < 0 || address.size() > kMostCharacters)
        return ScriptFailed();
    const QByteArray data = QByteArray::fromPercentEncoding(address.mid(comma + 1).toLatin1());
    if (!address.left(comma).endsWith(QLatin1String(";base64"), Qt::CaseInsensitive))
        return data;
    return QByteArray::fromBase64(data);
}

} // namespace

QString CoverSource::identify(const QString &address)
{
    if (address.isEmpty())
        return {};
    return QString::fromLatin1(QCryptographicHash::hash(address.toUtf8(), QCryptographicHash::Sha1).toHex());
}

ScriptOutcome CoverSource::read(const QString &address)
{
    // An address with the picture in it is too long to be taken apart for nothing.
    if (address.startsWith(QLatin1String("data:"), Qt::CaseInsensitive))
        return decodeData(address);
    const QUrl url(address.size() <= kLongestAddress ? address : QString());
    if (url.isLocalFile())
        return readFile(url.toLocalFile());
    return url.scheme() == QLatin1String("https") ? ScriptOutcome(address) : ScriptFailed();
}

} // namespace Kestrune
