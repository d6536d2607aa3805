#pragma once

#include "NotchKit/Platform/Releases.h"

class QFile;

namespace Kestrune {

/// Whether the open file is the release's package, byte for byte: a plain file of this user's with no second
/// name, of the length and with the hash that the makers signed. Blocks.
bool isPackage(const QFile &file, const Release &release);

} // namespace Kestrune
