// The reply of the forecast service.

#include "NotchKit/Tools/Weather/Forecast.h"

#include <cmath>
#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray body(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto forecast = parseForecast(body);
    if (!forecast)
        return 0;
    if (!std::isfinite(forecast->temperature.value_or(0)) || !std::isfinite(forecast->wind.value_or(0)) ||
        weatherSymbol(forecast->code).isEmpty())
        std::abort();
    for (const WeatherDay &day : forecast->days) {
        if (!day.date.isValid() || !std::isfinite(day.high) || !std::isfinite(day.low) ||
            weatherSymbol(day.code).isEmpty())
            std::abort();
    }
    return 0;
}
