#pragma once

#include "NotchKit/Platform/Pasteboard.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace Kestrune {

class PictureReader;

/// A copied picture: the bytes as they were received, its size, and a small image of it for the list. It is
/// decoded only to make that image. Copies share their data; equal means the same data in memory.
class ClipboardPicture
{
public:
    /// Larger pictures are refused unopened, whatever their encoding claims to hold.
    static constexpr qint64 kMostPixels = 64'000'000;
    static constexpr qint64 kMostBytes = qint64{64} * 1024 * 1024;
    static constexpr int kThumbnailSide = 64; ///< Pixels; twice the side of a row's square.

    /// Nothing for data that is no picture, is damaged or exceeds the limits. Any thread; decodes.
    static std::optional<ClipboardPicture> fromEncoded(const EncodedPicture &encoded,
                                                       PictureReader &pictures);

    /// The picture in a file; nothing also for what is no regular file. Any thread; reads and decodes.
    static std::optional<ClipboardPicture> fromFile(const QString &path, PictureReader &pictures);

    /// As it was received. May take a while, on any thread.
    EncodedPicture encoded() const;

    QString type() const { return m_data->type; }

    /// Whether it was received as the same bytes.
    bool isSameAs(const ClipboardPicture &other) const { return m_data->digest == other.m_data->digest; }

    QSize size() const { return m_data->size; }
    const QImage &thumbnail() const { return m_data->thumbnail; }

    /// What it takes in memory, in bytes.
    qint64 cost() const { return m_data->bytes.size() + m_data->thumbnail.sizeInBytes(); }

    bool operator==(const ClipboardPicture &other) const = default;

private:
    struct Data
    {
        QByteArray bytes;
        qsizetype step = 0; ///< Of packed bytes: how many a pixel has. Zero for those as they came.
        QString type;
        QSize size;
        QImage thumbnail;
        QByteArray digest; ///< Of what was received.
    };

    explicit ClipboardPicture(Data data);

    std::shared_ptr<const Data> m_data;
};

} // namespace Kestrune
