#include "DataControlPasteboard.h"

#include "DataControlLoop.h"
#include "Desktop/Compositor/CompositorGlobals.h"

namespace Kestrune {

bool DataControlPasteboard::isThere(const QByteArray &display)
{
    const QSet<QByteArray> globals = compositorGlobals(display);
    return globals.contains("ext_data_control_manager_v1") ||
           globals.contains("zwlr_data_control_manager_v1");
}

DataControlPasteboard::DataControlPasteboard(const QByteArray &display)
    : ThreadedPasteboard(
          [display](PasteboardLink &link) { return std::make_unique<DataControlLoop>(display, link); })
{}

} // namespace Kestrune
