#include "Forecast.h"

#include "NotchKit/Json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace Kestrune {

namespace {

std::optional<WeatherDay> day(const QJsonValue &time, const QJsonValue &code, const QJsonValue &high,
                              const QJsonValue &low)
{
    const QDate date = QDate::fromString(time.toString(), QStringLiteral("yyyy-MM-dd"));
    const auto weather = wholeNumber(code);
    const auto most = number(high);
    const auto least = number(low);
    if (!date.isValid() || !weather || !most || !least)
        return std::nullopt;
    return WeatherDay{date, *weather, *most, *least};
}

/// What is no day is left out; the shortest of the lists ends it.
QList<WeatherDay> days(const QJsonObject &daily)
{
    const QJsonArray times = daily.value(QLatin1String("time")).toArray();
    const QJsonArray codes = daily.value(QLatin1String("weather_code")).toArray();
    const QJsonArray highs = daily.value(QLatin1String("temperature_2m_max")).toArray();
    const QJsonArray lows = daily.value(QLatin1String("temperature_2m_min")).toArray();
    const auto count = std::min({times.size(), codes.size(), highs.size(), lows.size()});
    QList<WeatherDay> found;
    for (qsizetype i = 0; i < count; ++i) {
        if (const auto read = day(times.at(i), codes.at(i), highs.at(i), lows.at(i)))
            found.append(*read);
    }
    return found;
}

constexpr bool isIn(int code, int first, int last) { return code >= first && code <= last; }

const char *symbolName(int code)
{
    if (code == 0)
        return "sun.max.fill";
    if (isIn(code, 1, 2))
        return "cloud.sun.fill";
    if (code == 3)
        return "cloud.fill";
    if (code == 45 || code == 48)
        return "cloud.fog.fill";
    if (isIn(code, 51, 57))
        return "cloud.drizzle.fill";
    if (isIn(code, 61, 67) || isIn(code, 80, 82))
        return "cloud.rain.fill";
    if (isIn(code, 71, 77) || isIn(code, 85, 86))
        return "cloud.snow.fill";
    return isIn(code, 95, 99) ? "cloud.bolt.rain.fill" : "cloud.sun";
}

} // namespace

std::optional<Forecast> parseForecast(const QByteArray &body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (!document.isObject())
        return std::nullopt;
    const QJsonObject current = document[QLatin1String("current")].toObject();
    return Forecast{number(current.value(QLatin1String("temperature_2m"))),
                    wholeNumber(current.value(QLatin1String("weather_code"))),
                    number(current.value(QLatin1String("wind_speed_10m"))),
                    days(document[QLatin1String("daily")].toObject())};
}

std::optional<FoundPlace> parsePlace(const QByteArray &body)
{
    const QJsonObject first =
        QJsonDocument::fromJson(body)[QLatin1String("results")].toArray().at(0).toObject();
    const auto latitude = number(first.value(QLatin1String("latitude")));
    const auto longitude = number(first.value(QLatin1String("longitude")));
    if (!latitude || !longitude)
        return std::nullopt;
    return FoundPlace{first.value(QLatin1String("name")).toString(), *latitude, *longitude};
}

QString weatherSymbol(std::optional<int> code)
{
    return QString::fromLatin1(code ? symbolName(*code) : "cloud.sun");
}

} // namespace Kestrune
