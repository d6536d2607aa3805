#pragma once

#include <QString>

#include <optional>

namespace Kestrune {

/// A key on all keyboards.
struct KeyPlace
{
    quint32 symbol; ///< What it types or is called, by its X key symbol (X11/keysymdef.h).
    quint8 place;   ///< Where it is on every PC keyboard, for layouts without the symbol: evdev's code + 8.
};

/// Keys pressed together: a letter, a digit, F1 to F12 or Space, with Control, Alt, Shift and Super. In words
/// it is "Ctrl+Alt+Super+N".
struct KeyCombination
{
    quint32 keyCode = 45;                  ///< Virtual key code, as in HotKeys::registerHotKey; 45 is N.
    quint32 modifiers = 256 + 2048 + 4096; ///< As there: Super 256, Shift 512, Alt 2048, Control 4096.

    /// From words, in any case. Nothing for other keys, and for those that are for typing: a letter, a digit
    /// or Space without Control, Alt or Super.
    static std::optional<KeyCombination> parse(const QString &words);

    /// From a key that was pressed, Qt::Key and Qt::KeyboardModifiers. Nothing as in `parse`.
    static std::optional<KeyCombination> ofPress(int key, int modifiers);

    QString words() const;

    /// The names of the modifiers in the menus of the desktop's panel, and of the key: "Control", "n".
    QStringList menuWords() const;

    /// For the shortcuts specification of freedesktop.org: "CTRL+ALT+LOGO+n".
    QString trigger() const;

    /// As Qt's number: Qt::Key with Qt::KeyboardModifiers.
    int qtKey() const;

    /// Where to find the key of a virtual key code; nothing for one that is not known.
    static std::optional<KeyPlace> placeOf(quint32 keyCode);

    bool operator==(const KeyCombination &) const = default;
};

} // namespace Kestrune
