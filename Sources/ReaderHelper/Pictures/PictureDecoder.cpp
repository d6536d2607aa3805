#include "PictureDecoder.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace Kestrune {

namespace {

struct Encoding
{
    const char *format; ///< Qt's name.
    QByteArrayView begins;
    qsizetype at; ///< Where those bytes are.
    bool onWeb;
};

constexpr std::array kEncodings{
    Encoding{"png", QByteArrayView("\x89PNG\r\n\x1a\n", 8), 0, true},
    Encoding{"jpeg", QByteArrayView("\xff\xd8\xff", 3), 0, true},
    Encoding{"webp", QByteArrayView("WEBP", 4), 8, true},
    Encoding{"tiff", QByteArrayView("II*\0", 4), 0, false},
    Encoding{"tiff", QByteArrayView("MM\0*", 4), 0, false},
    Encoding{"bmp", QByteArrayView("BM", 2), 0, false},
    Encoding{"gif", QByteArrayView("GIF8", 4), 0, false},
};
constexpr qint64 kBeginning = 12;

const char *formatOf(QIODevice &device, PictureWish::Formats formats)
{
    const QByteArray bytes = device.peek(kBeginning);
    const auto found = std::ranges::find_if(kEncodings, [&](const Encoding &encoding) {
        return (encoding.onWeb || formats == PictureWish::Formats::clipboard) &&
               bytes.mid(encoding.at).startsWith(encoding.begins);
    });
    return found == kEncodings.end() ? nullptr : found->format;
}

/// libpng sets a chunk's memory aside, and clears it, before it has read any of the chunk: of one that says
/// it is longer than the rest of the picture, 2 GB at worst. The device is left at its beginning. Format:
/// https://www.w3.org/TR/png-3/#5Chunk-layout
bool areChunksWithin(QIODevice &device)
{
    constexpr qint64 kSignature = 8;
    constexpr qint64 kHead = 8; // The length of its data, then its type.
    constexpr qint64 kCheck = 4;
    bool within = true;
    qint64 next = kSignature;
    while (within && device.seek(next)) {
        const QByteArray head = device.read(kHead);
        if (head.size() < kHead || head.endsWith("IEND"))
            break; // What follows the end is not read.
        next += kHead + qFromBigEndian<quint32>(head.constData()) + kCheck;
        within = next <= device.size();
    }
    return device.seek(0) && within;
}

/// Never larger than the picture.
QSize fitted(const QSize &size, const PictureWish &wish)
{
    const QSize side(wish.side, wish.side);
    if (wish.fit == PictureWish::Fit::inside)
        return size.boundedTo(side) == size ? size
                                            : size.scaled(side, Qt::KeepAspectRatio).expandedTo({1, 1});
    return std::min(size.width(), size.height()) <= wish.side
               ? size
               : size.scaled(side, Qt::KeepAspectRatioByExpanding);
}

QImage cut(const QImage &image, const PictureWish &wish)
{
    const int most = wish.fit == PictureWish::Fit::square
                         ? std::min({image.width(), image.height(), wish.side})
                         : wish.side;
    const int width = std::min(image.width(), most);
    const int height = std::min(image.height(), most);
    return image.copy((image.width() - width) / 2, (image.height() - height) / 2, width, height);
}

} // namespace

void PictureDecoder::prepare()
{
    for (const Encoding &encoding : kEncodings) {
        QBuffer nothing;
        nothing.open(QIODevice::ReadOnly);
        QImageReader(&nothing, encoding.format).canRead();
    }
}

ReadPicture PictureDecoder::decode(QIODevice &device, const PictureWish &wish)
{
    const char *const format = formatOf(device, wish.formats);
    if (!format || (qstrcmp(format, "png") == 0 && !areChunksWithin(device)))
        return {};
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > wish.mostPixels)
        return {};
    reader.setAutoTransform(true);
    const bool isWhole = wish.fit == PictureWish::Fit::whole;
    if (!isWhole)
        reader.setScaledSize(fitted(size, wish));
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    return {
        (isWhole ? image : cut(image, wish)).convertToFormat(QImage::Format_ARGB32_Premultiplied),
        turned ? size.transposed() : size,
        QCryptographicHash::hash(image.text(QStringLiteral("Thumb::URI")).toUtf8(), QCryptographicHash::Md5),
        image.text(QStringLiteral("Thumb::MTime")).toLongLong()};
}

} // namespace Kestrune
