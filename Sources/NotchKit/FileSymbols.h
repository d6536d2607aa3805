#pragma once

#include <QString>

namespace Kestrune {

/// The symbol for a file of that name, by its type; the file itself is not looked at. Any thread.
QString fileSymbol(const QString &name);

} // namespace Kestrune
