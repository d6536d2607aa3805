// A picture that any program may have encoded, made small as the views want it.

#include "ReaderHelper/Pictures/PictureDecoder.h"

#include <QBuffer>

#include <cstdlib>

using namespace Kestrune;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto fit = static_cast<PictureWish::Fit>(size % 3);
    const PictureWish wish{fit, PictureWish::Formats::clipboard, 64, 1'000'000};
    QBuffer buffer;
    buffer.setData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    buffer.open(QIODevice::ReadOnly);
    const ReadPicture picture = PictureDecoder::decode(buffer, wish);
    if (picture.image.width() > wish.side || picture.image.height() > wish.side ||
        picture.image.isNull() != picture.size.isEmpty())
        std::abort();
    return 0;
}
