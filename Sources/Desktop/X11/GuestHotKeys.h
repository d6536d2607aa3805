#pragma once

#include "X11HotKeys.h"

#include <memory>

namespace Kestrune {

/// The hot keys of a guest in a Wayland session: the desktop is asked for them, and they are grabbed as well,
/// which serves over X11 windows where the desktop gives none. A combination that it gives reaches no grab.
class GuestHotKeys : public HotKeys
{
public:
    /// `desktop` are the keys that the desktop is asked for.
    explicit GuestHotKeys(std::unique_ptr<HotKeys> desktop)
        : m_desktop(std::move(desktop))
    {}

    void installHandler(Handler handler) override
    {
        m_grabs.installHandler(handler);
        m_desktop->installHandler(std::move(handler));
    }
    void installBindingHandler(BindingHandler handler) override
    {
        m_desktop->installBindingHandler(std::move(handler));
    }
    bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) override
    {
        m_grabs.registerHotKey(keyCode, modifiers, identity);
        return m_desktop->registerHotKey(keyCode, modifiers, identity);
    }
    HotKeyBinding firstBinding() const override { return m_desktop->firstBinding(); }
    void unregisterHotKey(HotKeyIdentity identity) override
    {
        m_grabs.unregisterHotKey(identity);
        m_desktop->unregisterHotKey(identity);
    }

private:
    X11HotKeys m_grabs;
    std::unique_ptr<HotKeys> m_desktop;
};

} // namespace Kestrune
