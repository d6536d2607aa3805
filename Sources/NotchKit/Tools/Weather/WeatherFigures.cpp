#include "WeatherFigures.h"

#include "NotchKit/Kit/FigureAge.h"
#include "NotchKit/NotchStrings.h"

#include <QGuiApplication>
#include <QLocale>

#include <cmath>

namespace Kestrune {

namespace {

/// Halves away from zero; never a negative zero.
QString whole(double value)
{
    const double rounded = std::round(value);
    const QString digits = QLocale().toString(std::abs(rounded), 'f', 0);
    return rounded < 0 ? QChar(u'−') + digits : digits;
}

QString dash() { return QStringLiteral("–"); }

/// Each temperature keeps its own order; the two follow the direction of the language.
QString spanText(const WeatherDayFigures &day)
{
    if (QGuiApplication::layoutDirection() == Qt::LeftToRight)
        return day.high + QStringLiteral(" / ") + day.low;
    return QStringLiteral(u"\u200f\u2066%1\u2069 / \u2066%2\u2069").arg(day.high, day.low);
}

QString windText(double speed, bool miles)
{
    //: %1 is a speed in miles an hour.
    constexpr auto kMiles = QT_TRANSLATE_NOOP("notch", "Wind %1 mph");
    //: %1 is a speed in kilometres an hour.
    constexpr auto kKilometres = QT_TRANSLATE_NOOP("notch", "Wind %1 km/h");
    return notchStrings(miles ? kMiles : kKilometres).arg(whole(speed));
}

} // namespace

QString WeatherFigures::degrees(double temperature) { return whole(temperature) + QChar(u'°'); }

void WeatherFigures::follow(WeatherModel &model, NotchSurroundings &surroundings)
{
    m_model = &model;
    m_surroundings = &surroundings;
    connect(&model, &WeatherModel::figuresChanged, this, &WeatherFigures::update);
    connect(&model, &WeatherModel::placeChanged, this, &WeatherFigures::update);
    connect(surroundings.settings(), &NotchSettings::weatherCityChanged, this, &WeatherFigures::update);
    connect(&surroundings, &NotchSurroundings::nowChanged, this, &WeatherFigures::followTime);
    followTime();
    update();
}

void WeatherFigures::followTime()
{
    const QDate today = m_surroundings->now().toLocalTime().date();
    const bool isNewDay = std::exchange(m_today, today) != today;
    const bool old = areOld();
    if (isNewDay || m_old != old)
        update();
}

/// Twice the time after which they are fetched anew while they are shown.
bool WeatherFigures::areOld() const
{
    constexpr qint64 kOld = qint64{30} * 60; // s
    return m_model->isStale() || m_model->figuresTime().secsTo(m_surroundings->now()) > kOld;
}

void WeatherFigures::update()
{
    const WeatherModel &model = *m_model;
    Shown shown;
    m_old = areOld();
    shown.city = m_surroundings->settings()->weatherCity();
    shown.symbol = weatherSymbol({});
    shown.temperature = dash();
    if (model.hasFiguresOfPlace()) {
        shown.symbol = model.symbol();
        if (const auto temperature = model.temperature())
            shown.temperature = degrees(*temperature);
        if (const auto wind = model.wind())
            shown.wind = windText(*wind, model.isFahrenheit());
        if (m_old)
            shown.age = FigureAge::text(model.figuresTime(), m_surroundings->now());
        for (const WeatherDay &day : model.days())
            shown.days.append(figures(day));
    }
    if (!shown.days.isEmpty())
        shown.range = spanText(shown.days.first());
    if (shown == m_shown)
        return;
    m_shown = shown;
    Q_EMIT changed();
}

WeatherDayFigures WeatherFigures::figures(const WeatherDay &day) const
{
    const bool today = day.date == m_today;
    const int weekday = day.date.dayOfWeek();
    WeatherDayFigures shown{today ? notchStrings(QT_TRANSLATE_NOOP("notch", "Today"))
                                  : QLocale().standaloneDayName(weekday, QLocale::ShortFormat),
                            today,
                            weatherSymbol(day.code),
                            degrees(day.high),
                            degrees(day.low),
                            {}};
    const QString name = today ? shown.label : QLocale().standaloneDayName(weekday);
    shown.help = name + QStringLiteral(": ") + spanText(shown);
    return shown;
}

} // namespace Kestrune
