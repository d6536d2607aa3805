#pragma once

#include <QByteArray>
#include <QSet>

namespace Kestrune {

/// The interfaces that the compositor at `display` offers, or the one in the environment when it is empty.
/// None where there is no compositor, or it does not answer within two seconds. Any thread, and before Qt
/// starts.
QSet<QByteArray> compositorGlobals(const QByteArray &display = {});

} // namespace Kestrune
