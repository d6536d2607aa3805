#include "UriLists.h"

#include <QStringList>
#include <QSysInfo>

namespace Kestrune::UriLists {

namespace {

bool isThisMachine(const QString &host)
{
    return host.isEmpty() || host == QLatin1String("localhost") ||
           host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

} // namespace

QList<QUrl> localFiles(const QByteArray &list, const QByteArray &type)
{
    QList<QByteArray> lines = list.split('\n');
    if (type == kCopiedFiles)
        lines.removeFirst();
    QList<QUrl> urls;
    for (QByteArray &line : lines) {
        // A carriage return belongs to the line's end; old programs end the whole with a NUL.
        while (line.endsWith('\r') || line.endsWith('\0'))
            line.chop(1);
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        QUrl url = QUrl::fromEncoded(line);
        if (url.scheme() != QLatin1String("file") || url.path().isEmpty() || !isThisMachine(url.host()))
            continue;
        url.setHost(QString());
        urls.append(url);
    }
    return urls;
}

QByteArray uriList(const QList<QUrl> &urls)
{
    QByteArray list;
    for (const QUrl &url : urls)
        list += url.toEncoded() + "\r\n";
    return list;
}

QByteArray copiedFiles(const QList<QUrl> &urls)
{
    QByteArray list = "copy";
    for (const QUrl &url : urls)
        list += '\n' + url.toEncoded();
    return list;
}

QString paths(const QList<QUrl> &urls)
{
    QStringList lines;
    for (const QUrl &url : urls)
        lines.append(url.isLocalFile() ? url.toLocalFile() : url.toString(QUrl::FullyEncoded));
    return lines.join(u'\n');
}

} // namespace Kestrune::UriLists
