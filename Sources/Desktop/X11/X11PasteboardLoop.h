#pragma once

#include "Desktop/Pasteboard/PasteboardLoop.h"
#include "SelectionOwner.h"
#include "SelectionReader.h"

namespace Kestrune {

/// The pasteboard's thread on a connection of its own to the X server.
class X11PasteboardLoop : public PasteboardLoop
{
public:
    X11PasteboardLoop(const QByteArray &display, PasteboardLink &link);

    void offer(const PasteboardContent &content) override;

private:
    bool isAlive() const override { return m_x.isAlive(); }
    bool handleEvents() override;
    bool isReadyToAsk() const override { return !m_reader; }
    void sleep() override;
    void askForTargets(qsizetype limit, Done<QList<QByteArray>> done) override;
    void askForTarget(const QByteArray &target, qsizetype limit, Done<Form> done) override;

    QStringList ownerNames() override;
    void handOver() override;

    void watchOwner();
    bool handleEvent();
    void ownerChanged(const xcb_generic_event_t &event);
    void expire();
    void finishReading();
    void ask(xcb_atom_t target, qsizetype limit, uint8_t format, Done<SelectionReader::Answer> done);

    SelectionConnection m_x;
    xcb_atom_t m_clipboard;
    SelectionOwner m_owner;
    xcb_window_t m_ownerWindow = XCB_WINDOW_NONE; ///< Of the current content.
    xcb_timestamp_t m_since = XCB_CURRENT_TIME;   ///< When it took the clipboard.
    std::unique_ptr<SelectionReader> m_reader;    ///< While an answer comes in.
    Done<SelectionReader::Answer> m_done;         ///< Of that answer.
};

} // namespace Kestrune
