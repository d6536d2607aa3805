#include "HelperPictures.h"

#include "Desktop/Reader/Log.h"
#include "Desktop/Reader/MemoryFile.h"
#include "Desktop/Reader/ReaderWire.h"

#include <algorithm>

namespace Kestrune {

namespace {

QImage imageOf(const QByteArray &pixels, const ReaderWire::PictureAnswer &answer)
{
    const qsizetype row = qsizetype{answer.width} * ReaderWire::kPixelBytes;
    if (pixels.size() < row * answer.height)
        return {};
    return QImage(reinterpret_cast<const uchar *>(pixels.constData()), answer.width, answer.height, row,
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

bool isWhole(const PictureWish &wish) { return wish.fit == PictureWish::Fit::whole; }

/// What the answer has room for.
qint64 pixelsFor(const PictureWish &wish)
{
    return isWhole(wish) ? std::min<qint64>(wish.mostPixels, ReaderWire::kMostWhole)
                         : qint64{wish.side} * wish.side;
}

bool isPossible(const ReaderWire::PictureAnswer &answer, const PictureWish &wish)
{
    const int side = isWhole(wish) ? ReaderWire::kMostWhole : wish.side;
    return answer.width > 0 && answer.height > 0 && answer.width <= side && answer.height <= side &&
           qint64{answer.width} * answer.height <= pixelsFor(wish) && answer.wholeWidth > 0 &&
           answer.wholeHeight > 0;
}

} // namespace

HelperPictures::HelperPictures(const QString &helper)
    : m_readers(helper, ReaderWire::kPictures)
{}

ReadPicture HelperPictures::read(const QByteArray &encoded, const PictureWish &wish)
{
    const MemoryFile file("encoded");
    return file.write(encoded) ? readFile(file.descriptor(), wish) : ReadPicture();
}

ReadPicture HelperPictures::readFile(int descriptor, const PictureWish &wish)
{
    const qint64 room = pixelsFor(wish);
    const MemoryFile memory("pixels"); // Takes no more than is written to it.
    if (!memory.reserve(static_cast<std::size_t>(room) * ReaderWire::kPixelBytes))
        return {};
    const ReaderWire::PictureQuestion question{
        static_cast<std::int32_t>(wish.fit), static_cast<std::int32_t>(wish.formats), wish.side,
        static_cast<std::int32_t>(room), isWhole(wish) ? room : wish.mostPixels};
    const auto outcome = m_readers.ask<ReaderWire::PictureAnswer>(question, descriptor, memory.descriptor());
    const auto *const answer = std::get_if<ReaderWire::PictureAnswer>(&outcome);
    if (!answer)
        qCWarning(readerLog, "a picture was given up: nothing reads it to its end");
    if (!answer || !isPossible(*answer, wish))
        return {};
    const auto pixels = static_cast<std::size_t>(answer->width) * static_cast<std::size_t>(answer->height);
    return {imageOf(memory.first(pixels * ReaderWire::kPixelBytes), *answer),
            {answer->wholeWidth, answer->wholeHeight},
            QByteArray(answer->thumbnailOf.data(), ReaderWire::kDigestBytes),
            answer->thumbnailTime};
}

} // namespace Kestrune
