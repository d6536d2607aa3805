#include "UriLists.h"

#include <QStringList>
#include <QSysInfo>

#include <algorithm>

namespace Kestrune::UriLists {

namespace {

bool isThisMachine(const QString &host)
{
    return host.isEmpty() || host == QLatin1String("localhost") ||
           host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
}

/// The URL of the local file that a line names; an empty one for any other line.
QUrl localFile(QByteArrayView line)
{
    // A carriage return belongs to the line's end; old programs end the whole with a NUL.
    while (line.endsWith('\r') || line.endsWith('\0'))
        line.chop(1);
    if (line.isEmpty() || line.startsWith('#'))
        return {};
    const QUrl url = QUrl::fromEncoded(line.toByteArray());
    if (url.scheme() != QLatin1String("file") || !url.path().startsWith(QLatin1Char('/')) ||
        !isThisMachine(url.host()))
        return {};
    // Without a host a path must not begin with two slashes, of which programs write too many.
    const QString path = url.path(QUrl::FullyEncoded);
    qsizetype slashes = 0;
    while (slashes < path.size() && path.at(slashes) == QLatin1Char('/'))
        ++slashes;
    QUrl file;
    file.setScheme(QStringLiteral("file"));
    file.setPath(path.mid(std::max<qsizetype>(slashes - 1, 0)), QUrl::StrictMode);
    return file;
}

} // namespace

QList<QUrl> localFiles(const QByteArray &list, const QByteArray &type)
{
    QList<QUrl> urls;
    QByteArrayView left(list);
    for (qsizetype line = 0; !left.isEmpty() && line < kMostLines; ++line) {
        const qsizetype end = left.indexOf('\n');
        const QUrl url = localFile(end < 0 ? left : left.first(end));
        left = end < 0 ? QByteArrayView() : left.sliced(end + 1);
        if (!url.isEmpty() && (line > 0 || type != kCopiedFiles))
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
