#include "CalendarFormat.h"

#include "NotchKit/Kit/Format.h"
#include "NotchKit/NotchStrings.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

QString today() { return notchStrings(QT_TRANSLATE_NOOP("notch", "Today")); }
QString tomorrow() { return notchStrings(QT_TRANSLATE_NOOP("notch", "Tomorrow")); }

QString shortTime(const QDateTime &local) { return Format::clockTime(local.time(), QLocale()); }

float luminance(const QColor &color)
{
    const auto linear = [](float part) { return std::pow(part, 2.2F); };
    return 0.2126F * linear(color.redF()) + 0.7152F * linear(color.greenF()) +
           0.0722F * linear(color.blueF());
}

/// A day that is over: its name, or where that could be any week's, its date.
QString pastDay(const QDate &day, const QDate &today)
{
    constexpr int kNamedDays = 6;
    const QLocale locale;
    return day.daysTo(today) <= kNamedDays ? locale.dayName(day.dayOfWeek(), QLocale::ShortFormat)
                                           : locale.toString(day, QLocale::ShortFormat);
}

bool isWholeDay(const QDateTime &local) { return local.time() == QTime(0, 0); }

} // namespace

QString CalendarFormat::when(const QDateTime &start, bool allDay, const QDateTime &now)
{
    const QDateTime local = start.toLocalTime();
    const QDate date = now.toLocalTime().date();
    const bool isOld = local.date() < date;
    if (allDay && isOld)
        //: In the place of an appointment’s time; %1 is the day before today when it began, such as “Mon”.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "All day, since %1")).arg(pastDay(local.date(), date));
    if (allDay)
        //: In the place of an appointment’s time.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "All day"));
    if (isOld)
        //: When an appointment began; %1 is a day before today and a time, such as “Mon 14:05”.
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Since %1"))
            .arg(pastDay(local.date(), date) + QLatin1Char(' ') + shortTime(local));
    return (local.date() == date ? today() : tomorrow()) + QLatin1Char(' ') + shortTime(local);
}

QString CalendarFormat::due(const QDateTime &due, const QDateTime &now)
{
    if (!due.isValid())
        return {};
    const QDateTime local = due.toLocalTime();
    switch (now.toLocalTime().date().daysTo(local.date())) {
    case -1:
        return notchStrings(QT_TRANSLATE_NOOP("notch", "Yesterday"));
    case 0:
        return isWholeDay(local) ? today() : shortTime(local);
    case 1:
        return tomorrow();
    default:
        return QLocale().toString(local.date(), QLocale::ShortFormat);
    }
}

bool CalendarFormat::isOverdue(const QDateTime &due, const QDateTime &now)
{
    if (!due.isValid())
        return false;
    const QDateTime local = due.toLocalTime();
    return isWholeDay(local) ? local.date() < now.toLocalTime().date() : due < now;
}

QString CalendarFormat::unread(const QStringList &names)
{
    if (names.isEmpty())
        return {};
    //: The name of a calendar in quotation marks.
    const QString quoted = notchStrings(QT_TRANSLATE_NOOP("notch", "“%1”"));
    QStringList all;
    for (const QString &name : names) {
        // Isolated, so that a name that is written the other way turns nothing around it.
        all.append(quoted.arg(QChar(0x2068) + name + QChar(0x2069)));
    }
    //: %1 is the name of a calendar in quotation marks, or several with commas between them.
    return notchStrings(QT_TRANSLATE_NOOP("notch", "Could not be read in full: %1"))
        .arg(all.join(QStringLiteral(", ")));
}

QColor CalendarFormat::visible(const QColor &color)
{
    constexpr float kDarkest = 0.18F; // Relative luminance: three times as bright as a tile at the least.
    constexpr float kStep = 0.04F;
    if (!color.isValid())
        return QColor::fromRgbF(1, 1, 1, 0.4F);
    QColor lighter = color;
    for (float lightness = color.lightnessF(); luminance(lighter) < kDarkest && lightness < 1;) {
        lightness = std::min(lightness + kStep, 1.0F);
        lighter = QColor::fromHslF(color.hslHueF(), color.hslSaturationF(), lightness);
    }
    return lighter;
}

} // namespace Kestrune
