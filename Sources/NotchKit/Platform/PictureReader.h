#pragma once

#include <QByteArray>
#include <QImage>

namespace Kestrune {

/// What is to be made of a picture that a stranger has encoded.
struct PictureWish
{
    /// How it is made as small as `side`, without being enlarged.
    enum class Fit {
        inside, ///< The longer side fits.
        middle, ///< The shorter side fits; what stands over at both ends of the other is cut off.
        square, ///< As `middle`, and of a smaller picture the square in its middle.
        whole,  ///< As it is, whatever the side.
    };
    /// Which encodings are read. Others are no pictures.
    enum class Formats {
        web,       ///< PNG, JPEG, WebP.
        clipboard, ///< And TIFF, BMP, GIF.
    };

    Fit fit = Fit::inside;
    Formats formats = Formats::web;
    int side = 256;                 ///< Pixels.
    qint64 mostPixels = 64'000'000; ///< Larger ones are refused unopened.
};

struct ReadPicture
{
    QImage image; ///< Premultiplied ARGB; null for what is no picture, is damaged or exceeds a limit.
    QSize size;   ///< Of the whole picture in pixels, turned as it is meant to be seen.
    /// Where the picture says that it is another one's thumbnail (Thumbnail Managing Standard,
    /// specifications.freedesktop.org/thumbnail-spec): the MD5 sum of that one's address, and its time.
    QByteArray thumbnailOf;
    qint64 thumbnailTime = 0; ///< Seconds since 1970.
};

/// Reads what strangers have encoded where a fault costs that one picture. Any thread; each call takes some
/// seconds at most, and none waits for another.
class PictureReader
{
public:
    virtual ~PictureReader() = default;

    virtual ReadPicture read(const QByteArray &encoded, const PictureWish &wish) = 0;

    /// Of a regular file that is open to be read, from its beginning; the descriptor stays the caller's.
    virtual ReadPicture readFile(int descriptor, const PictureWish &wish) = 0;
};

} // namespace Kestrune
