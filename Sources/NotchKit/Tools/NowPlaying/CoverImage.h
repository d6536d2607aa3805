#pragma once

#include <QByteArray>
#include <QImage>

namespace Kestrune::CoverImage {

/// Larger pictures are refused unopened, whatever their encoding claims to hold.
constexpr qint64 kMostPixels = 64'000'000;

/// Pixels of the shorter side, at most: what the largest view shows on a dense display.
constexpr int kSide = 320;

/// The square middle of an encoded picture. A null image for data that is no picture, is damaged or exceeds
/// the limits. Any thread; decodes.
QImage decode(const QByteArray &data);

} // namespace Kestrune::CoverImage
