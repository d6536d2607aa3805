#include "X11PasteboardLoop.h"

#include "ClipboardKeeper.h"
#include "Desktop/Pasteboard/Log.h"
#include "WindowClasses.h"

#include <QtEndian>

#include <algorithm>
#include <array>

#include <poll.h>

#include <xcb/xfixes.h>

namespace Kestrune {

namespace {

QList<xcb_atom_t> atomsIn(const QByteArray &data)
{
    QList<xcb_atom_t> atoms;
    for (qsizetype i = 0; i + 4 <= data.size(); i += 4) {
        const auto atom = qFromUnaligned<xcb_atom_t>(data.constData() + i);
        if (!atoms.contains(atom))
            atoms.append(atom);
    }
    return atoms;
}

} // namespace

X11PasteboardLoop::X11PasteboardLoop(const QByteArray &display, PasteboardLink &link)
    : PasteboardLoop(link)
    , m_x(display)
    , m_clipboard(m_x.atom("CLIPBOARD"))
    , m_owner(m_x, m_clipboard)
{
    if (!m_x.isAlive()) {
        qCWarning(clipboardLog, "no connection to the display, or one without XFixes");
        return;
    }
    watchOwner();
}

void X11PasteboardLoop::watchOwner()
{
    m_x.watchOwner(m_clipboard);
    m_ownerWindow = m_x.ownerOf(m_clipboard);
    m_since = m_x.serverTime();
}

bool X11PasteboardLoop::handleEvents()
{
    xcb_flush(m_x.get());
    const bool hadEvent = handleEvent();
    finishReading();
    expire();
    return hadEvent;
}

bool X11PasteboardLoop::handleEvent()
{
    const auto event = m_x.nextEvent();
    if (!event)
        return false;
    if (m_x.isOwnerEvent(*event)) {
        ownerChanged(*event);
        return true;
    }
    if (m_x.isLossOfWindow(*event)) {
        qCInfo(clipboardLog, "another program destroyed the window of the clipboard");
        m_x.renewWindow();
        m_owner.offerAgain();
        watchOwner();
        return true;
    }
    if (m_reader)
        m_reader->handle(*event);
    m_owner.handle(*event);
    return true;
}

void X11PasteboardLoop::ownerChanged(const xcb_generic_event_t &event)
{
    const auto &change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
    if (m_reader)
        m_reader->ownerChanged(SelectionConnection::sequenceOf(event), change.owner == XCB_WINDOW_NONE);
    const bool wasOurs = m_ownerWindow == m_x.window();
    m_ownerWindow = change.owner;
    m_since = change.selection_timestamp;
    if (change.owner != XCB_WINDOW_NONE)
        contentReplaced(change.owner == m_x.window() ? Change::ours : Change::copied);
    else // A program that takes its copy back does so as the owner that it is.
        contentReplaced(change.subtype == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER || wasOurs
                            ? Change::gone
                            : Change::orphaned);
}

QStringList X11PasteboardLoop::ownerNames() { return WindowClasses::ofClient(m_x, m_ownerWindow); }

void X11PasteboardLoop::handOver()
{
    if (const auto targets = m_owner.kept(); !targets.empty())
        ClipboardKeeper(m_x, m_owner).keep(targets);
}

void X11PasteboardLoop::expire()
{
    const auto now = Clock::now();
    m_owner.expire(now);
    if (m_reader)
        m_reader->expire(now);
    finishReading();
}

void X11PasteboardLoop::sleep()
{
    auto next = m_owner.deadline();
    if (m_reader)
        next = next ? std::min(*next, m_reader->deadline()) : m_reader->deadline();
    std::array<pollfd, 2> sources{pollfd{xcb_get_file_descriptor(m_x.get()), POLLIN, 0},
                                  pollfd{commandDescriptor(), POLLIN, 0}};
    poll(sources.data(), sources.size(), timeoutUntil(next));
}

void X11PasteboardLoop::finishReading()
{
    if (!m_reader || !m_reader->isFinished())
        return;
    auto answer = m_reader->take();
    m_reader.reset();
    const auto done = std::exchange(m_done, {});
    if (answer)
        done(std::move(*answer));
    else
        qCInfo(clipboardLog, "the owner gave nothing, too much or too late");
}

void X11PasteboardLoop::offer(const PasteboardContent &content)
{
    m_owner.offer(PasteboardTypes::forms(content));
}

void X11PasteboardLoop::ask(xcb_atom_t target, qsizetype limit, uint8_t format,
                            Done<SelectionReader::Answer> done)
{
    m_done = std::move(done);
    m_reader = std::make_unique<SelectionReader>(m_x, m_clipboard,
                                                 SelectionReader::Question{target, m_since, limit, format});
}

void X11PasteboardLoop::askForTargets(qsizetype limit, Done<QList<QByteArray>> done)
{
    if (m_ownerWindow == XCB_WINDOW_NONE)
        return;
    ask(m_x.atom("TARGETS"), limit, 32, [this, done = std::move(done)](const auto &answer) {
        // Programs of old give the target's name for the type.
        if (answer.type == XCB_ATOM_ATOM || answer.type == m_x.atom("TARGETS"))
            done(m_x.names(atomsIn(answer.data)));
    });
}

void X11PasteboardLoop::askForTarget(const QByteArray &target, qsizetype limit, Done<Form> done)
{
    ask(m_x.atom(target), limit, 8, [this, target, done = std::move(done)](const auto &answer) {
        done({target, m_x.names({answer.type}).constFirst(), answer.data});
    });
}

} // namespace Kestrune
