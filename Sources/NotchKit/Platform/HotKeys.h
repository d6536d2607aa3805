#pragma once

#include <QtGlobal>

#include <functional>

namespace Kestrune {

/// Who a hot-key registration belongs to.
struct HotKeyIdentity
{
    quint32 signature = 0; ///< Four-character code of the program, big-endian.
    quint32 id = 0;        ///< Number of the registration, never used twice in a process.

    bool operator==(const HotKeyIdentity &) const = default;
};

/// System-wide key combinations. Main thread only.
class HotKeys
{
public:
    /// Called on the main thread once per press; a key held down does not repeat.
    using Handler = std::function<void(HotKeyIdentity)>;

    virtual ~HotKeys() = default;

    /// Installs the one handler that all presses are reported to.
    virtual void installHandler(Handler handler) = 0;

    /// Registers a combination, whatever the state of Caps Lock and Num Lock. `keyCode` is a virtual key
    /// code (45 is N), `modifiers` a mask of 256 (command, the Super key), 512 (shift), 2048 (option,
    /// Alt) and 4096 (control). False when another program has the combination; nothing is held then.
    virtual bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) = 0;

    /// Ends a registration; nothing happens for an unknown one.
    virtual void unregisterHotKey(HotKeyIdentity identity) = 0;
};

} // namespace Kestrune
