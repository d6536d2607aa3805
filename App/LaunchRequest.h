#pragma once

#include "NotchKit/Catalogue.h"

#include <optional>

namespace Kestrune {

/// What the command line of a start asks for.
struct LaunchRequest
{
    bool open = false;             ///< "--open" was given.
    std::optional<NotchTool> tool; ///< The tool after it; nothing when it names none.
    bool restored = false;         ///< A session manager starts what ran when the session ended.

    bool operator==(const LaunchRequest &) const = default;
};

} // namespace Kestrune
