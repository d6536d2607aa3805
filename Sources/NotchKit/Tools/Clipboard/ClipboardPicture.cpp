#include "ClipboardPicture.h"

#include "NotchKit/Platform/OfferedPictures.h"
#include "NotchKit/Platform/PictureReader.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace Kestrune {

namespace {

constexpr PictureWish kThumbnail{.fit = PictureWish::Fit::middle,
                                 .formats = PictureWish::Formats::clipboard,
                                 .side = ClipboardPicture::kThumbnailSide,
                                 .mostPixels = ClipboardPicture::kMostPixels};

/// Whether the encoding stores every pixel as it is, so that packing the bytes pays.
bool isUnpacked(const QString &type) { return type == QLatin1String(Pasteboard::kTiff); }

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
    const bool compress = isUnpacked(encoded.type);
    QByteArray bytes = compress ? qCompress(encoded.data, 1) : encoded.data;
    bytes.squeeze();
    return ClipboardPicture({bytes, compress, encoded.type, picture.size, picture.image,
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
    return {m_data->compressed ? qUncompress(m_data->bytes) : m_data->bytes, m_data->type};
}

} // namespace Kestrune
