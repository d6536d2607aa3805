#pragma once

#include <QString>

#include <optional>

namespace Kestrune::ShortcutTrigger {

/// A combination (codes as in HotKeys::registerHotKey) in the words of the shortcuts specification of
/// freedesktop.org, "CTRL+ALT+LOGO+n"; nothing for a key that is not known.
std::optional<QString> forPortal(quint32 keyCode, quint32 modifiers);

/// The same as a number of Qt's: a key with its modifiers.
std::optional<int> forQt(quint32 keyCode, quint32 modifiers);

/// What a desktop calls a trigger, as short plain text. "Press <Control><Alt>n" is "Ctrl+Alt+N".
QString readable(const QString &description);

} // namespace Kestrune::ShortcutTrigger
