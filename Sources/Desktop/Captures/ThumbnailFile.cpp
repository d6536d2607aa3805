#include "ThumbnailFile.h"

#include "NotchKit/Platform/Thumbnails.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Kestrune {

namespace {

QString cacheFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
           QLatin1String("/thumbnails");
}

QString addressKey() { return QStringLiteral("Thumb::URI"); }
QString timeKey() { return QStringLiteral("Thumb::MTime"); }

/// Opens a regular file; a device or a pipe that bears a picture's name would never end.
bool openPicture(QFile &file, const QString &path, struct stat &status)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return false;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        status.st_size <= ThumbnailFile::kMostBytes &&
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return true;
    ::close(descriptor);
    return false;
}

QSize fitted(const QSize &size)
{
    const QSize side(Thumbnails::kSide, Thumbnails::kSide);
    return size.width() <= side.width() && size.height() <= side.height()
               ? size
               : size.scaled(side, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage decoded(QFile &file)
{
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > ThumbnailFile::kMostPixels)
        return {};
    reader.setAutoTransform(true);
    reader.setScaledSize(fitted(size));
    return reader.read();
}

/// The shared thumbnail, or a null image unless it is of this state of the file.
QImage shared(const QString &path, const struct stat &status)
{
    QImageReader reader(ThumbnailFile::pathFor(path), "png");
    const QSize size = reader.size();
    if (size.isEmpty() || size != fitted(size))
        return {};
    const QImage image = reader.read();
    // Of the image: the reader itself takes a name with a colon apart.
    const bool isCurrent = image.text(addressKey()) == QString::fromLatin1(ThumbnailFile::addressOf(path)) &&
                           image.text(timeKey()) == QString::number(status.st_mtime);
    return isCurrent ? image : QImage();
}

bool makeFolder(const QString &folder)
{
    const QByteArray path = QFile::encodeName(folder);
    return QDir(folder).exists() || ::mkdir(path.constData(), S_IRWXU) == 0;
}

void share(QImage image, const QString &path, const struct stat &status)
{
    // Nothing is made of the cache's own files.
    if (path.startsWith(cacheFolder() + QLatin1Char('/')))
        return;
    const QString file = ThumbnailFile::pathFor(path);
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
    if (!makeFolder(cacheFolder()) || !makeFolder(QFileInfo(file).path()))
        return;
    image.setText(addressKey(), QString::fromLatin1(ThumbnailFile::addressOf(path)));
    image.setText(timeKey(), QString::number(status.st_mtime));
    image.setText(QStringLiteral("Software"), QStringLiteral("Kestrune"));
    // Complete under its name, or not there; for the user alone, as a temporary file is.
    QTemporaryFile written(file + QStringLiteral(".XXXXXX"));
    if (!written.open() || !image.save(&written, "png"))
        return;
    written.close();
    const QByteArray name = QFile::encodeName(written.fileName());
    if (::chmod(name.constData(), S_IRUSR | S_IWUSR) == 0 &&
        std::rename(name.constData(), QFile::encodeName(file).constData()) == 0)
        written.setAutoRemove(false);
}

} // namespace

QByteArray ThumbnailFile::addressOf(const QString &path)
{
    return "file://" + QFile::encodeName(path).toPercentEncoding("!$&'()*+,/:=@");
}

QString ThumbnailFile::pathFor(const QString &path)
{
    const QByteArray hash = QCryptographicHash::hash(addressOf(path), QCryptographicHash::Md5).toHex();
    return cacheFolder() + QStringLiteral("/large/") + QString::fromLatin1(hash) + QStringLiteral(".png");
}

QImage ThumbnailFile::read(const QString &path)
{
    QFile file;
    struct stat status
    {};
    if (!openPicture(file, path, status))
        return {};
    QImage image = shared(path, status);
    if (image.isNull()) {
        image = decoded(file);
        if (!image.isNull())
            share(image, path, status);
    }
    return image.isNull() ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace Kestrune
