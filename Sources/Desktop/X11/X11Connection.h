#pragma once

#include <QByteArray>
#include <QList>

#include <cstdlib>
#include <memory>

#include <xcb/xcb.h>

namespace Kestrune::X11 {

/// Whether an X server can be reached at all; for a clear word before Qt gives up without one.
bool canConnect();

/// The connection that Qt's own windows use; null when Qt does not run on X11.
xcb_connection_t *connection();

/// Whether the server is the one for guests in a Wayland session; older ones do not say so themselves, but
/// the session does.
bool isGuest();

/// Whether a window takes clicks in its input shape alone; not as a guest of the servers that do not tell the
/// compositor of it.
bool hasInputShapes();

/// The root window of the default screen.
xcb_window_t root();

/// The atom of that name; asked of the server once and remembered.
xcb_atom_t atom(const QByteArray &name);

/// What a property of a window lists, windows or atoms; nothing for another type or without the window. No
/// more than a few thousand.
QList<uint32_t> listOf(xcb_window_t window, const QByteArray &property, xcb_atom_t type);

/// Whether it is one of Qt's windows.
bool isOwn(xcb_window_t window);

struct FreeReply
{
    void operator()(void *reply) const { std::free(reply); } // NOLINT(bugprone-*): xcb allocates with malloc.
};

/// The mark in `response_type` of an event that another client sent, which the server lets it do with almost
/// any event and to any window: what only the server can know is compared with the mark, so that it does not
/// match. The rest is the kind.
constexpr uint8_t kSent = 0x80;

/// A reply or an error, freed with the object.
template <typename Type>
using Reply = std::unique_ptr<Type, FreeReply>;

} // namespace Kestrune::X11
