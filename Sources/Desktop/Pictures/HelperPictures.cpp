#include "HelperPictures.h"

#include "Desktop/Reader/Log.h"
#include "Desktop/Reader/MemoryFile.h"
#include "Desktop/Reader/ReaderWire.h"

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

bool isPossible(const ReaderWire::PictureAnswer &answer, const PictureWish &wish)
{
    return answer.width > 0 && answer.height > 0 && answer.width <= wish.side && answer.height <= wish.side &&
           answer.wholeWidth > 0 && answer.wholeHeight > 0;
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
    const std::size_t side = static_cast<std::size_t>(wish.side);
    const MemoryFile memory("pixels");
    if (!memory.reserve(side * side * ReaderWire::kPixelBytes))
        return {};
    const ReaderWire::PictureQuestion question{static_cast<std::int32_t>(wish.fit),
                                               static_cast<std::int32_t>(wish.formats), wish.side, 0,
                                               wish.mostPixels};
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
