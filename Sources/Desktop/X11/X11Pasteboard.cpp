#include "X11Pasteboard.h"

#include "X11PasteboardLoop.h"

namespace Kestrune {

X11Pasteboard::X11Pasteboard(const QByteArray &display)
    : ThreadedPasteboard(
          [display](PasteboardLink &link) { return std::make_unique<X11PasteboardLoop>(display, link); })
{}

} // namespace Kestrune
