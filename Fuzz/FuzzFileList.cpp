// The targets, texts and lists of files that another program's clipboard or drag hands over.

#include "Desktop/Mime/PasteboardTypes.h"
#include "Desktop/Mime/UriLists.h"

#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    PasteboardTypes::named(bytes.split('\n'));
    for (const QByteArray &target : PasteboardTypes::textTargets())
        PasteboardTypes::text(bytes, target);
    PasteboardTypes::text(bytes.mid(bytes.indexOf('\n') + 1), bytes.left(bytes.indexOf('\n')));
    for (const QByteArray &target : PasteboardTypes::fileTargets()) {
        const QList<QUrl> files = UriLists::localFiles(bytes, target);
        for (const QUrl &file : files) {
            if (!file.isLocalFile() || !file.toLocalFile().startsWith(QLatin1Char('/')) ||
                !file.host().isEmpty())
                std::abort();
        }
        if (UriLists::localFiles(UriLists::uriList(files), "text/uri-list") != files ||
            UriLists::localFiles(UriLists::copiedFiles(files), UriLists::kCopiedFiles) != files)
            std::abort();
        UriLists::paths(files);
    }
    return 0;
}
