#include "UsageGauge.h"

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr double kLeastWidth = 4;

double clamped(double fraction) { return std::isnan(fraction) ? 0 : std::clamp(fraction, 0.0, 1.0); }

} // namespace

double UsageGauge::filled(double fraction, double width)
{
    return std::max(clamped(fraction) * width, kLeastWidth);
}

QColor UsageGauge::color(double fraction)
{
    const double shown = clamped(fraction);
    if (shown > 0.85)
        return QColor::fromRgb(0xff, 0x5a, 0x52);
    return shown > 0.6 ? QColor::fromRgb(0xff, 0xa1, 0x2e) : QColor::fromRgb(0x3d, 0xcf, 0x64);
}

QString UsageGauge::percent(double fraction)
{
    return QString::number(std::lround(clamped(fraction) * 100)) + QLatin1Char('%');
}

} // namespace Kestrune
