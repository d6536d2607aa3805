#include "ClipboardKeeper.h"

#include "Desktop/Pasteboard/Log.h"

#include <chrono>

#include <poll.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kHandOver = 900ms; // The end of the program waits for it.

} // namespace

ClipboardKeeper::ClipboardKeeper(SelectionConnection &x, SelectionOwner &owner)
    : m_x(x)
    , m_owner(owner)
    , m_manager(x.atom("CLIPBOARD_MANAGER"))
{}

bool ClipboardKeeper::ask(const std::vector<xcb_atom_t> &targets)
{
    if (m_x.ownerOf(m_manager) == XCB_WINDOW_NONE)
        return false;
    const xcb_atom_t property = m_x.atom("KESTRUNE_KEPT");
    xcb_change_property(m_x.get(), XCB_PROP_MODE_REPLACE, m_x.window(), property, XCB_ATOM_ATOM, 32,
                        static_cast<uint32_t>(targets.size()), targets.data());
    xcb_convert_selection(m_x.get(), m_x.window(), m_manager, m_x.atom("SAVE_TARGETS"), property,
                          m_x.serverTime());
    return true;
}

bool ClipboardKeeper::isAnswer(const xcb_generic_event_t &event) const
{
    if ((event.response_type & 0x7f) != XCB_SELECTION_NOTIFY)
        return false;
    const auto &notify = reinterpret_cast<const xcb_selection_notify_event_t &>(event);
    return notify.requestor == m_x.window() && notify.selection == m_manager;
}

void ClipboardKeeper::keep(const std::vector<xcb_atom_t> &targets)
{
    using Clock = std::chrono::steady_clock;
    if (!ask(targets))
        return;
    const auto end = Clock::now() + kHandOver;
    for (auto now = Clock::now(); m_x.isAlive() && now < end; now = Clock::now()) {
        xcb_flush(m_x.get());
        if (const auto event = m_x.nextEvent()) {
            if (isAnswer(*event))
                return;
            m_owner.handle(*event);
            continue;
        }
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - now);
        pollfd server{xcb_get_file_descriptor(m_x.get()), POLLIN, 0};
        ::poll(&server, 1, static_cast<int>(left.count()));
    }
    qCInfo(clipboardLog, "the desktop's clipboard manager has not kept what was copied");
}

} // namespace Kestrune
