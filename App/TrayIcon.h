#pragma once

#include <QImage>
#include <QList>

namespace Kestrune {

/// The program's symbol for the desktop's panel, in the sizes that panels use. It is light with a dark edge:
/// nobody tells whether the panel is light or dark.
QList<QImage> trayIcon();

} // namespace Kestrune
