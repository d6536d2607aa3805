#pragma once

#include "NotchKit/Platform/ScriptExecutor.h"

namespace Kestrune::CoverSource {

/// Characters of an address that a player gives, unless the picture is in it.
constexpr qsizetype kLongestAddress = 16'384;

/// What a player's cover address leads to: the bytes of a local file or of the address itself, or, as a text,
/// an address on the network that is left to the caller. Failed for any other address, for what is no regular
/// file and for more bytes than a cover may have. Any thread; reads the file.
ScriptOutcome read(const QString &address);

/// A short text for the address; empty without one. Any thread; looks at no file.
QString identify(const QString &address);

} // namespace Kestrune::CoverSource
