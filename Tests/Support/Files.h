#pragma once

#include <QBuffer>
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

inline QList<QUrl> fileUrls(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

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

/// A few kilobytes that would unpack to more pixels than any reader allows.
inline QByteArray pictureBomb()
{
    QImage image(9000, 9000, QImage::Format_Mono);
    image.fill(0);
    return encoded(image);
}
