#pragma once

#include <QString>

namespace Kestrune::ShortcutTrigger {

/// What a desktop calls a trigger, as short plain text. "Press <Control><Alt>n" is "Ctrl+Alt+N".
QString readable(const QString &description);

} // namespace Kestrune::ShortcutTrigger
