#pragma once

#include "NotchKit/Platform/PictureReader.h"

class QIODevice;

namespace Kestrune::PictureDecoder {

/// Loads what the encodings need, as long as files can be opened.
void prepare();

/// From the beginning of `device`. The encoding is told by its first bytes, whatever a name says.
ReadPicture decode(QIODevice &device, const PictureWish &wish);

} // namespace Kestrune::PictureDecoder
