#include "ThumbnailFile.h"

#include "NotchKit/Platform/PictureReader.h"
#include "NotchKit/Platform/Thumbnails.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
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

QByteArray digestOf(const QString &path)
{
    return QCryptographicHash::hash(ThumbnailFile::addressOf(path), QCryptographicHash::Md5);
}

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

constexpr PictureWish kThumbnail{.side = Thumbnails::kSide, .mostPixels = ThumbnailFile::kMostPixels};

/// The shared thumbnail, or a null image unless it is of this state of the file.
QImage shared(const QString &path, const struct stat &status, PictureReader &pictures)
{
    QFile file;
    struct stat own
    {};
    if (!openPicture(file, ThumbnailFile::pathFor(path), own))
        return {};
    const ReadPicture picture = pictures.readFile(file.handle(), kThumbnail);
    const bool isCurrent = picture.image.size() == picture.size && picture.thumbnailOf == digestOf(path) &&
                           picture.thumbnailTime == status.st_mtime;
    return isCurrent ? picture.image : QImage();
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
    image.setText(QStringLiteral("Thumb::URI"), QString::fromLatin1(ThumbnailFile::addressOf(path)));
    image.setText(QStringLiteral("Thumb::MTime"), QString::number(status.st_mtime));
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
    return cacheFolder() + QStringLiteral("/large/") + QString::fromLatin1(digestOf(path).toHex()) +
           QStringLiteral(".png");
}

QImage ThumbnailFile::read(const QString &path, PictureReader &pictures)
{
    QFile file;
    struct stat status
    {};
    if (!openPicture(file, path, status))
        return {};
    QImage image = shared(path, status, pictures);
    if (image.isNull()) {
        image = pictures.readFile(file.handle(), kThumbnail).image;
        if (!image.isNull())
            share(image, path, status);
    }
    return image;
}

} // namespace Kestrune
