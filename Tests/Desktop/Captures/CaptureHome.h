#pragma once

#include "Support/Files.h"

#include <QTemporaryDir>
#include <QThread>

/// A user's home folder of its own, with a Pictures folder; screenshot tools find nothing else.
struct CaptureHome
{
    CaptureHome()
    {
        qputenv("HOME", folder.path().toUtf8());
        for (const char *name : {"CONFIG", "CACHE", "DATA"})
            qputenv(qPrintable(QStringLiteral("XDG_%1_HOME").arg(QLatin1String(name))),
                    folder.filePath(u'.' + QString::fromLatin1(name).toLower()).toUtf8());
        qputenv("XDG_DATA_DIRS", folder.path().toUtf8()); // the machine's own desktop settings stay out
        make(QStringLiteral("Pictures"));
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    QString make(const QString &name) const
    {
        QDir(folder.path()).mkpath(name);
        return path(name);
    }

    static QByteArray picture(QSize size = {40, 30}, const char *format = "png", const QString &software = {})
    {
        QImage image = plainImage(size);
        if (!software.isNull())
            image.setText(QStringLiteral("Software"), software);
        return encoded(image, format);
    }

    /// Writes a file below the home folder, later than all before; its folder is made too.
    QString write(const QString &name, const QByteArray &bytes = picture()) const
    {
        QThread::msleep(10); // the kernel's time for files moves in steps
        if (!writeFile(path(name), bytes))
            qFatal("%s cannot be written", qPrintable(name));
        return path(name);
    }

    QTemporaryDir folder;
};
