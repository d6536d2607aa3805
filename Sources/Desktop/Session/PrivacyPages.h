#pragma once

#include <QStringList>

namespace Kestrune {

/// The program that shows the page of the running desktop's settings nearest to `anchor` ("Privacy_Camera"),
/// and its arguments: that page where it is installed, else the settings as they open. The settings of
/// another desktop only where the running one has none; empty where none is installed.
QStringList privacyPage(const QString &anchor);

} // namespace Kestrune
