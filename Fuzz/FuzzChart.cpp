// The reply of the chart service, and what a user may type as symbols.

#include "NotchKit/Tools/Stocks/StockQuote.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray body(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto quote = parseQuote(QStringLiteral("X"), body);
    const auto isNumber = [](double value) { return std::isfinite(value); };
    if (quote && (!isNumber(quote->price) || !isNumber(quote->previousClose) || quote->name.isEmpty() ||
                  std::isnan(quote->change()) || !std::ranges::all_of(quote->points, isNumber)))
        std::abort();
    const QStringList symbols = stockSymbols(QString::fromUtf8(body));
    if (symbols.contains(QString()) || stockSymbols(symbols.join(QLatin1Char(','))).size() > symbols.size())
        std::abort();
    return 0;
}
