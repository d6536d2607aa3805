#include "ClipboardPicture.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMimeDatabase>

#include <algorithm>

namespace Kestrune {

namespace {

/// The size at which the picture's shorter side fits the thumbnail; never larger than the picture.
QSize thumbnailSize(const QSize &size)
{
    const QSize side(ClipboardPicture::kThumbnailSide, ClipboardPicture::kThumbnailSide);
    const QSize scaled = size.scaled(side, Qt::KeepAspectRatioByExpanding);
    return scaled.width() < size.width() ? scaled : size;
}

QImage cropped(const QImage &image)
{
    const int width = std::min(image.width(), ClipboardPicture::kThumbnailSide);
    const int height = std::min(image.height(), ClipboardPicture::kThumbnailSide);
    return image.copy((image.width() - width) / 2, (image.height() - height) / 2, width, height)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool isAllowed(const QSize &size)
{
    return !size.isEmpty() && qint64{size.width()} * size.height() <= ClipboardPicture::kMostPixels;
}

/// Whether the encoding stores every pixel as it is, so that packing the bytes pays.
bool isUnpacked(const QString &type) { return type == QLatin1String(Pasteboard::kTiff); }

} // namespace

ClipboardPicture::ClipboardPicture(Data data)
    : m_data(std::make_shared<const Data>(std::move(data)))
{}

std::optional<ClipboardPicture> ClipboardPicture::fromEncoded(const EncodedPicture &encoded)
{
    if (encoded.data.size() > kMostBytes)
        return std::nullopt;
    QBuffer buffer;
    buffer.setData(encoded.data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (!isAllowed(size))
        return std::nullopt;
    reader.setAutoTransform(true);
    reader.setScaledSize(thumbnailSize(size));
    const QImage image = reader.read();
    if (image.isNull())
        return std::nullopt;

    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const bool compress = isUnpacked(encoded.type);
    QByteArray bytes = compress ? qCompress(encoded.data, 1) : encoded.data;
    bytes.squeeze();
    return ClipboardPicture(
        {bytes, compress, encoded.type, turned ? size.transposed() : size, cropped(image)});
}

std::optional<ClipboardPicture> ClipboardPicture::fromFile(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > kMostBytes || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QString type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
    return fromEncoded({file.read(kMostBytes), type});
}

EncodedPicture ClipboardPicture::encoded() const
{
    return {m_data->compressed ? qUncompress(m_data->bytes) : m_data->bytes, m_data->type};
}

} // namespace Kestrune
