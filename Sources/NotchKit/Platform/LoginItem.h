#pragma once

#include <QString>

#include <optional>

namespace Kestrune {

/// Whether the program starts when the user logs in. Main thread only.
class LoginItem
{
public:
    virtual ~LoginItem() = default;

    virtual bool isEnabled() const = 0;

    /// Registers or unregisters the program; the result is the description of what failed, or nothing.
    virtual std::optional<QString> setEnabled(bool enabled) = 0;
};

} // namespace Kestrune
