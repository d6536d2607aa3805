#include "UsageGauge.h"

#include "NotchKit/Kit/Format.h"
#include "NotchKit/Kit/Palette.h"

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
        return Palette::kRed;
    return shown > 0.6 ? Palette::kOrange : Palette::kGreen;
}

QString UsageGauge::percent(double fraction)
{
    return Format::digits(QString::number(std::lround(clamped(fraction) * 100))) + QLatin1Char('%');
}

} // namespace Kestrune
