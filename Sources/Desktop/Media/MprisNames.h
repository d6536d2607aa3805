#pragma once

#include "NotchKit/Platform/PlayerScripts.h"

#include <QStringList>

#include <optional>

namespace Kestrune::MprisNames {

constexpr auto kPrefix = "org.mpris.MediaPlayer2.";

/// Which of the two players the owner of a bus name counts as; nothing for what is no player of its own.
std::optional<MediaPlayer> playerOf(const QString &busName);

/// Whether one of `parts` is in the name, large or small.
bool isIgnored(const QString &busName, const QStringList &parts);

/// A browser that tells of its pages itself, and the desktop's extension that tells of the same.
bool isBrowser(const QString &busName);
bool isBrowserIntegration(const QString &busName);

} // namespace Kestrune::MprisNames
