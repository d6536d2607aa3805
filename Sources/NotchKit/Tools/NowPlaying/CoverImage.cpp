#include "CoverImage.h"

#include "NotchKit/Platform/PlayerScripts.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>

namespace Kestrune {

namespace {

/// The size at which the shorter side fits; never larger than the picture.
QSize fitted(const QSize &size)
{
    const QSize side(CoverImage::kSide, CoverImage::kSide);
    const QSize scaled = size.scaled(side, Qt::KeepAspectRatioByExpanding);
    return scaled.width() < size.width() ? scaled : size;
}

QImage middle(const QImage &image)
{
    const int side = std::min(image.width(), image.height());
    return image.copy((image.width() - side) / 2, (image.height() - side) / 2, side, side);
}

} // namespace

QImage CoverImage::decode(const QByteArray &data)
{
    if (data.size() > kMostCoverBytes)
        return {};
    QBuffer buffer;
    buffer.setData(data);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels)
        return {};
    reader.setAutoTransform(true);
    reader.setScaledSize(fitted(size));
    const QImage image = reader.read();
    return image.isNull() ? image : middle(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace Kestrune
