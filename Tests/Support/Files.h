#pragma once

#include "Support/Lists.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QUrl>

/// What the file holds; nothing where it cannot be read.
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Writes a file, and makes its folder before. Says whether it worked.
inline bool writeFile(const QString &path, const QByteArray &bytes = {})
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QFile::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.flush();
}

/// The same, last changed at that time.
inline bool writeFile(const QString &path, const QByteArray &bytes, const QDateTime &time)
{
    QFile file(path);
    return writeFile(path, bytes) && file.open(QFile::ReadWrite) &&
           file.setFileTime(time, QFileDevice::FileModificationTime);
}

inline QList<QUrl> fileUrls(const QStringList &paths) { return each(paths, &QUrl::fromLocalFile); }

inline QByteArray encoded(const QImage &image, const char *format = "png")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

inline QImage plainImage(QSize size, const QColor &colour = Qt::blue)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

/// The number of that name in a file of a process, this one without an `id`, in /proc, such as "VmHWM:" in
/// "status"; -1 where there is none.
inline qint64 processFigure(const char *file, const QByteArray &name,
                            qint64 id = QCoreApplication::applicationPid())
{
    const auto lines = readFile(QStringLiteral("/proc/%1/%2").arg(id).arg(QLatin1String(file))).split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            return line.mid(name.size()).simplified().split(' ').constFirst().toLongLong();
    }
    return -1;
}

/// The smallest rectangle that holds every place in that size for which `condition` holds.
template <typename Condition>
QRect areaWhere(QSize size, const Condition &condition)
{
    QRect found;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            if (condition(x, y))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

/// A few kilobytes that would unpack to more pixels than any reader allows.
inline QByteArray pictureBomb()
{
    QImage image(9000, 9000, QImage::Format_Mono);
    image.fill(0);
    return encoded(image);
}
