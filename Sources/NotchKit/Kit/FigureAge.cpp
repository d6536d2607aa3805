#include "FigureAge.h"

#include "Format.h"
#include "NotchKit/NotchStrings.h"

#include <QLocale>

namespace Kestrune {

QString FigureAge::text(const QDateTime &time, const QDateTime &now)
{
    if (!time.isValid())
        return {};
    const QLocale locale;
    const QDateTime local = time.toLocalTime();
    const QString clock = Format::clockTime(local.time(), locale);
    const bool today = local.date() == now.toLocalTime().date();
    const QString when =
        today ? clock : locale.toString(local.date(), QLocale::ShortFormat) + QLatin1Char(' ') + clock;
    //: Beside figures that could not be fetched anew; %1 is when they came, such as “14:05” or “24.12.26
    //: 14:05”.
    return notchStrings(QT_TRANSLATE_NOOP("notch", "As of %1")).arg(when);
}

} // namespace Kestrune
