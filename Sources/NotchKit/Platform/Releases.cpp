#include "Releases.h"

namespace Kestrune {

QString Release::fileName() const
{
    // A name may hold an encoded slash.
    return package.fileName(QUrl::FullyDecoded).section(u'/', -1);
}

QString Release::notesIn(const QString &tag) const
{
    for (const QString &language : {tag, tag.section(u'-', 0, 0), QStringLiteral("en")}) {
        if (const auto found = notes.constFind(language); found != notes.cend())
            return *found;
    }
    return {};
}

} // namespace Kestrune
