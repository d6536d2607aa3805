#include "Format.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/RelativeTime.h"
#include "NotchKit/Tools/TimerModel.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Kestrune {

QString Format::relativeTime(const QDateTime &date, const QDateTime &now)
{
    return Kestrune::relativeTime(date, now, notchLanguage());
}

QString Format::playTime(double seconds)
{
    constexpr double kLongest = 100 * 3600 - 1;
    return TimerModel::format(std::floor(std::clamp(seconds, 0.0, kLongest)));
}

QString Format::clockTime(const QTime &time, const QLocale &locale)
{
    // Where no language is set, even the short form has seconds.
    QString format = locale.timeFormat(QLocale::ShortFormat);
    return locale.toString(time, format.remove(QLatin1String(":ss")));
}

QString Format::namingHost(const QString &text)
{
    return QString(text).replace(QLatin1String("%@"), hostName());
}

} // namespace Kestrune
