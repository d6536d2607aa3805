#include "ClipboardPicture.h"

#include "NotchKit/Platform/OfferedPictures.h"
#include "NotchKit/Platform/PictureReader.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr PictureWish kThumbnail{.fit = PictureWish::Fit::middle,
                                 .formats = PictureWish::Formats::clipboard,
                                 .side = ClipboardPicture::kThumbnailSide,
                                 .mostPixels = ClipboardPicture::kMostPixels};

/// Whether the encoding stores every pixel as it is, so that packing the bytes pays.
bool isUnpacked(const QString &type) { return type == QLatin1String(Pasteboard::kTiff); }

/// Bytes from one pixel to the next, at least one, where the pixels are stored as they are.
qsizetype pixelStep(qsizetype bytes, QSize size)
{
    return std::max<qsizetype>(1, bytes / (qsizetype{size.width()} * size.height()));
}

/// Each byte less the one a pixel before it, which packs to a fifth of the bytes themselves.
QByteArray packed(const QByteArray &bytes, qsizetype step)
{
    QByteArray differences(bytes.size(), Qt::Uninitialized);
    std::copy_n(bytes.begin(), std::min(step, bytes.size()), differences.begin());
    for (qsizetype i = step; i < bytes.size(); ++i)
        differences[i] = static_cast<char>(bytes[i] - bytes[i - step]);
    return qCompress(differences, 1);
}

QByteArray unpacked(const QByteArray &differences, qsizetype step)
{
    QByteArray bytes = qUncompress(differences);
    for (qsizetype i = step; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(bytes[i] + bytes[i - step]);
    return bytes;
}

} // namespace

ClipboardPicture::ClipboardPicture(Data data)
    : m_data(std::make_shared<const Data>(std::move(data)))
{}

std::optional<ClipboardPicture> ClipboardPicture::fromEncoded(const EncodedPicture &encoded,
                                                              PictureReader &pictures)
{
    if (encoded.data.size() > kMostBytes)
        return std::nullopt;
    const ReadPicture picture = pictures.read(encoded.data, kThumbnail);
    if (picture.image.isNull())
        return std::nullopt;
    const qsizetype step = isUnpacked(encoded.type) ? pixelStep(encoded.data.size(), picture.size) : 0;
    QByteArray bytes = step > 0 ? packed(encoded.data, step) : encoded.data;
    bytes.squeeze();
    return ClipboardPicture({bytes, step, encoded.type, picture.size, picture.image,
                             QCryptographicHash::hash(encoded.data, QCryptographicHash::Sha256)});
}

std::optional<ClipboardPicture> ClipboardPicture::fromFile(const QString &path, PictureReader &pictures)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kMostBytes || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return fromEncoded({file.read(kMostBytes), pictureTypeOf(path)}, pictures);
}

EncodedPicture ClipboardPicture::encoded() const
{
    return {m_data->step > 0 ? unpacked(m_data->bytes, m_data->step) : m_data->bytes, m_data->type};
}

} // namespace Kestrune
