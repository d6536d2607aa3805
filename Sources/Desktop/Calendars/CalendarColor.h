#pragma once

#include <QColor>

namespace Kestrune {

/// A calendar's colour as programs store it: #RGB, #RGBA, #RRGGBB, #RRGGBBAA, a name of SVG's, rgb(…) or
/// rgba(…) with numbers or per cent, as CSS writes them. Opaque; invalid for anything else.
QColor calendarColor(const QString &text);

} // namespace Kestrune
