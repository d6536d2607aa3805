#include "Format.h"

#include "NotchKit/NotchStrings.h"
#include "NotchKit/RelativeTime.h"
#include "NotchKit/Tools/Timer/TimerModel.h"

#include <QFontMetricsF>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Kestrune {

QString Format::relativeTime(const QDateTime &date, const QDateTime &now)
{
    return digits(Kestrune::relativeTime(date, now, notchLanguage()));
}

QString Format::digits(QString text)
{
    const QString zero = QLocale().zeroDigit();
    if (zero.size() != 1 || zero == QLatin1String("0"))
        return text;
    for (QChar &character : text) {
        if (character >= u'0' && character <= u'9')
            character = QChar(static_cast<char16_t>(zero.at(0).unicode() + character.unicode() - u'0'));
    }
    return text;
}

double Format::digitWidth(const QFont &font)
{
    const QFontMetricsF metrics(font);
    double widest = 0;
    for (const QChar digit : digits(QStringLiteral("0123456789")))
        widest = std::max(widest, metrics.horizontalAdvance(digit));
    return widest;
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

QString Format::namingHost(const QString &text) { return text.arg(hostName()); }

} // namespace Kestrune
