#pragma once

#include "Desktop/Reader/ReaderPool.h"
#include "NotchKit/Platform/PictureReader.h"

namespace Kestrune {

/// Pictures read by a process of ours that can do nothing else. What ends it, or takes it too long, is no
/// picture; the next one is read by a new one.
class HelperPictures : public PictureReader
{
public:
    explicit HelperPictures(const QString &helper = ReaderPool::installed());

    ReadPicture read(const QByteArray &encoded, const PictureWish &wish) override;
    ReadPicture readFile(int descriptor, const PictureWish &wish) override;

private:
    ReaderPool m_readers;
};

} // namespace Kestrune
