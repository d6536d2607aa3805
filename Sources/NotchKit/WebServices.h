#pragma once

#include <array>

/// The web services that the tools ask: the only hosts that they know.
namespace Kestrune::WebServices {

inline constexpr auto kForecast = "api.open-meteo.com";
inline constexpr auto kGeocoding = "geocoding-api.open-meteo.com";
inline constexpr std::array kCharts{"query1.finance.yahoo.com",
                                    "query2.finance.yahoo.com"}; ///< In their order.

inline constexpr std::array kAll{kForecast, kGeocoding, kCharts[0], kCharts[1]};

} // namespace Kestrune::WebServices
