#pragma once

#include "SelectionOwner.h"

namespace Kestrune {

/// The desktop's clipboard manager, where there is one: what is left to it outlives the program that copied
/// it. Protocol: freedesktop.org's ClipboardManager, by the selection CLIPBOARD_MANAGER.
class ClipboardKeeper
{
public:
    ClipboardKeeper(SelectionConnection &x, SelectionOwner &owner);

    /// Has the owner's content kept in these forms. Returns when the manager has them or refuses, and after
    /// less than a second.
    void keep(const std::vector<xcb_atom_t> &targets);

private:
    bool ask(const std::vector<xcb_atom_t> &targets);
    bool isAnswer(const xcb_generic_event_t &event) const;

    SelectionConnection &m_x;
    SelectionOwner &m_owner;
    xcb_atom_t m_manager;
};

} // namespace Kestrune
