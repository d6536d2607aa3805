#pragma once

#include "NotchKit/Platform/HotKeys.h"

#include <functional>
#include <memory>

namespace Kestrune {

/// One registered system-wide key combination; its registration ends with the object. Main thread only.
class GlobalHotkey
{
public:
    using Action = std::function<void()>;
    using BindingAction = std::function<void(const HotKeyBinding &)>;

    /// Registers the combination (codes as in HotKeys::registerHotKey); null when it is taken. `action`
    /// runs on the main thread, from the event loop, at each press; `bound` whenever the desktop tells what
    /// came of the registration, but not before this returns. `hotKeys` outlives the result.
    static std::unique_ptr<GlobalHotkey> make(HotKeys &hotKeys, quint32 keyCode, quint32 modifiers,
                                              Action action, BindingAction bound,
                                              HotKeyPurpose purpose = HotKeyPurpose::toggle);

    ~GlobalHotkey();
    GlobalHotkey(const GlobalHotkey &) = delete;
    GlobalHotkey &operator=(const GlobalHotkey &) = delete;

    /// The number of this registration; never used twice.
    quint32 id() const { return m_identity.id; }

    /// Ends the registration; a press that is still on its way does nothing.
    void unregister();

private:
    GlobalHotkey(HotKeys &hotKeys, HotKeyIdentity identity);

    HotKeys *m_hotKeys; ///< Null once unregistered.
    HotKeyIdentity m_identity;
};

} // namespace Kestrune
