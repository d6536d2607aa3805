#pragma once

#include "NotchKit/Catalogue.h"

#include <optional>

namespace Kestrune {

/// What the command line of a start asks for.
struct LaunchRequest
{
    bool open = false;             ///< "--open" was given.
    std::optional<NotchTool> tool; ///< The tool after it; nothing when it names none.

    /// Reads it from the process's arguments, the program's own name excluded.
    static LaunchRequest parse(const QStringList &arguments);

    bool operator==(const LaunchRequest &) const = default;
};

} // namespace Kestrune
