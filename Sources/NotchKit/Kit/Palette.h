#pragma once

#include <QColor>

/// The colours that mean something, as the code draws them; those of the views are in Theme.
namespace Kestrune::Palette {

inline constexpr QColor kGreen{0x3d, 0xcf, 0x64};
inline constexpr QColor kOrange{0xff, 0xa1, 0x2e};
inline constexpr QColor kRed{0xff, 0x5a, 0x52};

} // namespace Kestrune::Palette
