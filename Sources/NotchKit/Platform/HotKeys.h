#pragma once

#include <QMetaType>
#include <QString>

#include <functional>

namespace Kestrune {

/// What a hot key is for: a desktop that is asked for it keeps the user's choice by that.
enum class HotKeyPurpose { toggle, prompter };

/// Who a hot-key registration belongs to.
struct HotKeyIdentity
{
    quint32 signature = 0; ///< Four-character code of the program, big-endian.
    quint32 id = 0;        ///< Number of the registration, never used twice in a process.

    HotKeyPurpose purpose = HotKeyPurpose::toggle;

    bool operator==(const HotKeyIdentity &) const = default;
};

/// What came of a registration.
struct HotKeyBinding
{
    enum class State {
        pending, ///< There is no answer yet, or nothing was asked for.
        asked,   ///< The combination that was asked for is held.
        chosen,  ///< The desktop holds the one that `trigger` names, which the user may have chosen there.
        taken,   ///< Another program has the combination.
        unbound, ///< The desktop holds none: it cannot, or the user refused.
    };

    State state = State::pending;
    QString trigger = {}; ///< As the desktop names it: plain text, at most 80 characters.

    bool operator==(const HotKeyBinding &) const = default;
};

/// System-wide key combinations. Main thread only.
class HotKeys
{
public:
    /// Called on the main thread once per press; a key held down does not repeat.
    using Handler = std::function<void(HotKeyIdentity)>;
    /// Called on the main thread whenever what came of a registration has changed.
    using BindingHandler = std::function<void(HotKeyIdentity, const HotKeyBinding &)>;

    virtual ~HotKeys() = default;

    /// Installs the one handler that all presses are reported to.
    virtual void installHandler(Handler handler) = 0;

    /// Installs the one handler of what comes of registrations later, where a desktop is asked for them and
    /// answers in its own time. It is told nothing where registerHotKey itself gives the answer.
    virtual void installBindingHandler(BindingHandler /*handler*/) {} // NOLINT(performance-*): heirs keep it.

    /// Registers a combination, whatever the state of Caps Lock and Num Lock. `keyCode` is a virtual key
    /// code (45 is N), `modifiers` a mask of 256 (command, the Super key), 512 (shift), 2048 (option,
    /// Alt) and 4096 (control). False when another program has the combination; nothing is held then.
    virtual bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) = 0;

    /// What is known of the registration that was just made.
    virtual HotKeyBinding firstBinding() const { return {HotKeyBinding::State::asked}; }

    /// Ends a registration; nothing happens for an unknown one.
    virtual void unregisterHotKey(HotKeyIdentity identity) = 0;
};

} // namespace Kestrune
