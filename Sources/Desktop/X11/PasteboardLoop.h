#pragma once

#include "Async/Mailbox.h"
#include "SelectionOwner.h"
#include "SelectionReader.h"

#include <atomic>

namespace Kestrune {

class PasteboardLoop;

/// What the main thread asks of the pasteboard's thread.
using PasteboardCommand = std::function<void(PasteboardLoop &)>;

/// The pasteboard's own thread: it sleeps until the X server or the main thread has something for it.
///
/// A question's `done` is called with the answer, or destroyed without a call when there is none. Questions
/// are carried out one after the other.
class PasteboardLoop
{
public:
    template <typename Answer>
    using Done = std::function<void(Answer)>;

    /// `changeCount` is raised with every copy by another program.
    PasteboardLoop(const QByteArray &display, Mailbox<PasteboardCommand> &commands,
                   std::atomic<qint64> &changeCount);

    /// Returns when the queue is closed or the connection to the server breaks.
    void run();

    void offer(const PasteboardContent &content);
    void types(Done<QStringList> done);
    void fileUrls(Done<QList<QUrl>> done);
    void picture(Done<EncodedPicture> done);
    void string(Done<QString> done);

private:
    using Clock = SelectionReader::Clock;

    /// What a program put on the clipboard in one go.
    struct Ownership
    {
        quint64 number = 0; ///< Counts the changes of hands.
        xcb_window_t owner = XCB_WINDOW_NONE;
        xcb_timestamp_t since = XCB_CURRENT_TIME;
    };

    struct Form
    {
        QByteArray target;
        QByteArray type;
        QByteArray data;
    };

    void start();
    bool handleEvent();
    void ownerChanged(const xcb_generic_event_t &event);
    bool runCommand();
    bool startQuestion();
    void expire();
    void sleep();
    void finishReading();
    void ask(xcb_atom_t target, qsizetype limit, uint8_t format, Done<SelectionReader::Answer> done);
    void askForTypes(const Done<QStringList> &done);
    void askForForm(const QList<QByteArray> &targets, qsizetype limit, const Done<Form> &done);

    Mailbox<PasteboardCommand> &m_commands;
    std::atomic<qint64> &m_changeCount;
    SelectionConnection m_x;
    xcb_atom_t m_clipboard;
    SelectionOwner m_owner;
    Ownership m_current;
    quint64 m_describedNumber = 0;             ///< Of the ownership whose types were asked for last.
    QHash<QByteArray, xcb_atom_t> m_described; ///< Its targets.
    std::deque<std::function<void()>> m_questions;
    std::unique_ptr<SelectionReader> m_reader; ///< While an answer comes in.
    Done<SelectionReader::Answer> m_done;      ///< Of that answer.
};

} // namespace Kestrune
