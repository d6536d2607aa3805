#pragma once

#include <QString>

namespace Kestrune {

/// The program of ours that does a part of its work in a process of its own: beside this one, as it is built,
/// or where helpers are installed. Empty where there is none. Any thread.
QString installedHelper(const QString &name);

} // namespace Kestrune
