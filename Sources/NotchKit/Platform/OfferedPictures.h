#pragma once

#include "Pasteboard.h"

#include <memory>

namespace Kestrune {

class PictureReader;

/// The picture in its own encoding and, where that is not PNG, which every program takes, as one too. The
/// latter is made when it is asked for; a picture of more than 32 megapixels has none.
QList<OfferedPicture> offeredPictures(const OfferedPicture &picture,
                                      const std::shared_ptr<PictureReader> &reader);

/// By the file's name alone: "image/jpeg" for "a.jpg".
QString pictureTypeOf(const QString &path);

} // namespace Kestrune
