#include "Format.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/RelativeTime.h"

namespace Kestrune {

QString Format::relativeTime(const QDateTime &date, const QDateTime &now)
{
    return Kestrune::relativeTime(date, now, notchLanguage());
}

QString Format::namingHost(const QString &text)
{
    return QString(text).replace(QLatin1String("%@"), hostName());
}

} // namespace Kestrune
