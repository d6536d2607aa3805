#include "FileSymbols.h"

#include <QMimeDatabase>

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

struct TypeSymbol
{
    const char *prefix; ///< Of the type or of one of its ancestors.
    const char *symbol;
};

/// The first that fits counts.
constexpr std::array kSymbols{
    TypeSymbol{"image/", "photo"},
    TypeSymbol{"video/", "film"},
    TypeSymbol{"audio/", "music.note"},
    TypeSymbol{"application/pdf", "doc.richtext"},
    TypeSymbol{"application/zip", "doc.zipper"},
    TypeSymbol{"application/x-tar", "doc.zipper"},
    TypeSymbol{"application/gzip", "doc.zipper"},
    TypeSymbol{"application/x-7z", "doc.zipper"},
    TypeSymbol{"application/x-compressed", "doc.zipper"},
    TypeSymbol{"text/", "doc.text"},
};

const char *symbolOf(const QString &type)
{
    const auto found = std::ranges::find_if(
        kSymbols, [&](const TypeSymbol &entry) { return type.startsWith(QLatin1String(entry.prefix)); });
    return found == kSymbols.end() ? nullptr : found->symbol;
}

} // namespace

QString fileSymbol(const QString &name)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    const char *symbol = symbolOf(type.name());
    // Office documents are zip archives too, which is not what their owner sees in them.
    if (!symbol && type.inherits(QStringLiteral("text/plain")))
        symbol = "doc.text";
    return QString::fromLatin1(symbol ? symbol : "doc");
}

} // namespace Kestrune
