// The reply of the geocoding service.

#include "NotchKit/Tools/Weather/Forecast.h"

#include <cmath>
#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto place =
        parsePlace(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (place && (!std::isfinite(place->latitude) || !std::isfinite(place->longitude)))
        std::abort();
    return 0;
}
