#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

#include <cmath>
#include <concepts>
#include <limits>
#include <optional>
#include <variant>

namespace Kestrune {

using StringMap = QMap<QString, QString>;

/// One stored value with its type: Boolean, integer, double, string, list of strings, string map, data.
using DefaultsValue = std::variant<bool, qint64, double, QString, QStringList, StringMap, QByteArray>;

/// `value` as a T, or nothing when it is of another type. Numbers and Booleans convert into one another
/// where no information is lost (1 is true and 1.0; 0.5 is no integer and 2 is no Boolean).
template <typename T>
std::optional<T> convertDefaultsValue(const DefaultsValue &value)
{
    if (const T *exact = std::get_if<T>(&value))
        return *exact;
    if constexpr (std::is_arithmetic_v<T>) {
        double number = 0;
        if (const auto *boolean = std::get_if<bool>(&value))
            number = *boolean ? 1 : 0;
        else if (const auto *integer = std::get_if<qint64>(&value))
            number = static_cast<double>(*integer);
        else if (const auto *real = std::get_if<double>(&value))
            number = *real;
        else
            return std::nullopt;
        constexpr double exactIntegers = 9007199254740992.0; // 2^53: beyond it a double skips integers
        if constexpr (std::same_as<T, bool>)
            return number == 0 || number == 1 ? std::optional(number == 1) : std::nullopt;
        else if constexpr (std::same_as<T, double>)
            return number;
        else if (std::abs(number) <= exactIntegers && number == std::trunc(number))
            return static_cast<T>(number);
    }
    return std::nullopt;
}

/// The key-value store of one named domain.
///
/// Main thread only. A write is one durable transaction that is complete when the call returns: it
/// survives the process being killed at any later moment. Failures never reach the caller: a store that
/// cannot be written keeps the values in memory and says so once on standard error. Other processes may
/// read and write the same domain; a read gives what was stored last by any of them.
class UserDefaults
{
public:
    virtual ~UserDefaults() = default;

    /// The value under `key`, or nothing.
    virtual std::optional<DefaultsValue> object(const QString &key) const = 0;

    /// Stores `value` under `key`, replacing what was there, whatever its type.
    virtual void setObject(const QString &key, const DefaultsValue &value) = 0;

    /// Removes `key`; nothing happens when it is absent.
    virtual void removeObject(const QString &key) = 0;

    /// Removes the copies that were kept of a damaged store, which hold what was stored in it. A store that
    /// keeps none does nothing.
    virtual void removeDamagedCopies() = 0;

    /// The value under `key` as a T; nothing when it is absent or of another type.
    template <typename T>
    std::optional<T> value(const QString &key) const
    {
        const auto stored = object(key);
        return stored ? convertDefaultsValue<T>(*stored) : std::nullopt;
    }
};

} // namespace Kestrune
