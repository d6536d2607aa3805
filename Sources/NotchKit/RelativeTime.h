#pragma once

#include <QDateTime>
#include <QString>

namespace Kestrune {

/// How long ago `date` was, as narrow as the language allows ("5m ago"), in the largest unit that fits once;
/// a date that is still to come reads as now. `language` is a BCP 47 tag. Worded by ICU's formatter for
/// relative dates.
QString relativeTime(const QDateTime &date, const QDateTime &now, const QString &language);

} // namespace Kestrune
