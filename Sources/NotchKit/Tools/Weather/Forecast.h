#pragma once

#include <QByteArray>
#include <QDate>
#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace Kestrune {

/// One day of the forecast.
struct WeatherDay
{
    QDate date;      ///< In the place's own calendar.
    int code = 0;    ///< WMO weather code.
    double high = 0; ///< Temperatures in the unit that was asked for.
    double low = 0;

    bool operator==(const WeatherDay &) const = default;
};

/// What the forecast service told; what it left out is absent.
struct Forecast
{
    std::optional<double> temperature;
    std::optional<int> code;
    std::optional<double> wind;
    QList<WeatherDay> days; ///< In the order of the service, today first.

    bool operator==(const Forecast &) const = default;
};

/// What the geocoding service found.
struct FoundPlace
{
    QString name; ///< Empty where the service gives none.
    double latitude = 0;
    double longitude = 0;

    bool operator==(const FoundPlace &) const = default;
};

/// The body of a reply; nothing for one that is no JSON object.
std::optional<Forecast> parseForecast(const QByteArray &body);

/// The first match in the body of a reply; nothing without one that has coordinates.
std::optional<FoundPlace> parsePlace(const QByteArray &body);

/// The symbol of a WMO weather code, or of none.
QString weatherSymbol(std::optional<int> code);

} // namespace Kestrune
