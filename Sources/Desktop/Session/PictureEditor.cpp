#include "PictureEditor.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <tuple>

namespace Kestrune {

namespace {

constexpr qint64 kMostEntryBytes =
    qint64{256} * 1024; // Of a file; entries hold their texts in all languages.
constexpr qsizetype kMostEntries = 4000;

QString editedType() { return QStringLiteral("image/png"); }

using EntryKeys = QMap<QString, QString>;

/// The keys of one group of a file; those of translations are left out.
EntryKeys keysOf(const QString &file, const QByteArray &group)
{
    QFile opened(file);
    if (!opened.open(QIODevice::ReadOnly))
        return {};
    EntryKeys keys;
    bool inside = false;
    for (const QByteArray &raw : opened.read(kMostEntryBytes).split('\n')) {
        const QByteArray line = raw.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('['))
            inside = line == '[' + group + ']';
        else if (inside && equals > 0 && !line.startsWith('#'))
            keys.insert(QString::fromUtf8(line.left(equals).trimmed()),
                        QString::fromUtf8(line.mid(equals + 1).trimmed()));
    }
    return keys;
}

QStringList listOf(const QString &text) { return text.split(QLatin1Char(';'), Qt::SkipEmptyParts); }

bool isTrue(const EntryKeys &keys, const char *name)
{
    return keys.value(QString::fromLatin1(name)) == QLatin1String("true");
}

bool isInstalled(const EntryKeys &keys)
{
    const QString test = keys.value(QStringLiteral("TryExec"));
    return test.isEmpty() || !QStandardPaths::findExecutable(test).isEmpty();
}

/// The less the better; nothing where it edits no pictures.
std::optional<int> rankOf(const EntryKeys &keys)
{
    if (isTrue(keys, "NoDisplay") || isTrue(keys, "Hidden") || isTrue(keys, "Terminal") ||
        !isInstalled(keys) || !listOf(keys.value(QStringLiteral("MimeType"))).contains(editedType()))
        return std::nullopt;
    const QStringList categories = listOf(keys.value(QStringLiteral("Categories")));
    const auto has = [&](const char *category) { return categories.contains(QLatin1String(category)); };
    if (has("Viewer"))
        return std::nullopt;
    if (has("Annotation") || has("X-Annotation"))
        return 0;
    if (has("RasterGraphics"))
        return 1;
    return has("2DGraphics") && !has("Office") ? std::optional(2) : std::nullopt;
}

/// The entries that the user, or the desktop for them, put first for the type.
QStringList preferredEntries(const QStringList &associations)
{
    QStringList entries;
    for (const char *group : {"Default Applications", "Added Associations"}) {
        for (const QString &file : associations)
            entries += listOf(keysOf(file, group).value(editedType()));
    }
    return entries;
}

} // namespace

QStringList PictureEditor::commandFor(const QString &path) const
{
    QStringList words = QProcess::splitCommand(command);
    bool named = false;
    for (QString &word : words) {
        const bool takesPath = word == QLatin1String("%f") || word == QLatin1String("%F");
        const bool takesUrl = word == QLatin1String("%u") || word == QLatin1String("%U");
        named = named || takesPath || takesUrl;
        if (takesPath)
            word = path;
        else if (takesUrl)
            word = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    }
    words.removeIf([](const QString &word) { return word.size() == 2 && word.startsWith(QLatin1Char('%')); });
    return named && words.size() > 1 ? words : QStringList();
}

std::optional<PictureEditor> findPictureEditor(const QStringList &folders, const QStringList &associations)
{
    const QStringList preferred = preferredEntries(associations);
    QMap<std::tuple<qsizetype, int, QString>, PictureEditor> editors;
    QSet<QString> seen; // An entry hides those of its name in later folders.
    for (const QString &folder : folders) {
        for (const QString &name : QDir(folder).entryList({QStringLiteral("*.desktop")}, QDir::Files)) {
            if (seen.contains(name) || seen.size() >= kMostEntries)
                continue;
            seen.insert(name);
            const EntryKeys keys = keysOf(folder + QLatin1Char('/') + name, "Desktop Entry");
            const PictureEditor editor{name, keys.value(QStringLiteral("Exec"))};
            const auto rank = rankOf(keys);
            if (!rank || editor.commandFor(QStringLiteral("/")).isEmpty())
                continue;
            const qsizetype place = preferred.indexOf(name);
            editors.insert({place < 0 ? preferred.size() : place, *rank, name}, editor);
        }
    }
    return editors.isEmpty() ? std::nullopt : std::optional(editors.first());
}

std::optional<PictureEditor> findPictureEditor()
{
    const QString associations = QStringLiteral("mimeapps.list");
    return findPictureEditor(
        QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation),
        QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, associations) +
            QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation, associations));
}

} // namespace Kestrune
