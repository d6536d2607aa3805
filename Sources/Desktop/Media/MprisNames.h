#pragma once

#include "NotchKit/Platform/PlayerScripts.h"

#include <optional>

namespace Kestrune::MprisNames {

constexpr auto kPrefix = "org.mpris.MediaPlayer2.";

/// Which of the two players the owner of a bus name counts as; nothing for what is no player of its own.
std::optional<MediaPlayer> playerOf(const QString &busName);

} // namespace Kestrune::MprisNames
