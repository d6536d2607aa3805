#pragma once

#include "SelectionConnection.h"

#include <QStringList>

/// What programs call themselves on the windows that they show.
namespace Kestrune::WindowClasses {

/// Both names in each WM_CLASS (ICCCM, section 4.1.2.5) of the windows that the client which made `window`
/// has at the top, shown or not; each once. The window that owns a selection mostly names nobody itself.
QStringList ofClient(SelectionConnection &x, xcb_window_t window);

} // namespace Kestrune::WindowClasses
