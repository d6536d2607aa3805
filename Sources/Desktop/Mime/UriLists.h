#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

/// The two forms in which programs hand over files.
namespace Kestrune::UriLists {

/// The file managers' own form: "copy" or "cut", then a URL a line.
constexpr auto kCopiedFiles = "x-special/gnome-copied-files";

constexpr qsizetype kMostLines = 100'000;

/// The URLs of local files in a list of `type`, in their order, without a host: of its first `kMostLines`,
/// as each costs the reader time.
QList<QUrl> localFiles(const QByteArray &list, const QByteArray &type);

QByteArray uriList(const QList<QUrl> &urls);
QByteArray copiedFiles(const QList<QUrl> &urls);

/// The paths of local files and the other URLs in full, one a line.
QString paths(const QList<QUrl> &urls);

} // namespace Kestrune::UriLists
