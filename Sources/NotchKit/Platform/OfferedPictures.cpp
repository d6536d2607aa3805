#include "OfferedPictures.h"

#include "PictureReader.h"

#include <QBuffer>
#include <QMimeDatabase>

namespace Kestrune {

namespace {

constexpr PictureWish kWhole{
    .fit = PictureWish::Fit::whole, .formats = PictureWish::Formats::clipboard, .mostPixels = 32'000'000};
constexpr int kQuickly = 80; // Of what packs slower and better there is more below.

QByteArray pngOf(const QByteArray &encoded, PictureReader &reader)
{
    const QImage image = reader.read(encoded, kWhole).image;
    QBuffer png;
    if (image.isNull() || !png.open(QIODevice::WriteOnly) || !image.save(&png, "PNG", kQuickly))
        return {};
    return png.data();
}

} // namespace

QList<OfferedPicture> offeredPictures(const OfferedPicture &picture,
                                      const std::shared_ptr<PictureReader> &reader)
{
    const QString png = QString::fromLatin1(Pasteboard::kPng);
    if (picture.type == png)
        return {picture};
    return {picture, {png, [data = picture.data, reader] { return pngOf(data(), *reader); }}};
}

QString pictureTypeOf(const QString &path)
{
    return QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension).name();
}

} // namespace Kestrune
