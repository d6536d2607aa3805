#pragma once

#include <QJsonValue>

#include <cmath>
#include <limits>
#include <optional>

namespace Kestrune {

/// The number in `value`; nothing for a value of another type.
inline std::optional<double> number(const QJsonValue &value)
{
    const double read = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    return std::isfinite(read) ? std::optional(read) : std::nullopt;
}

/// The whole number in `value`; nothing for any other value.
inline std::optional<int> wholeNumber(const QJsonValue &value)
{
    const auto read = number(value);
    using Limits = std::numeric_limits<int>;
    if (!read || *read != std::trunc(*read) || *read < Limits::min() || *read > Limits::max())
        return std::nullopt;
    return static_cast<int>(*read);
}

} // namespace Kestrune
