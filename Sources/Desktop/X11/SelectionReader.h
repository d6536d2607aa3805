#pragma once

#include "Desktop/Pasteboard/ReadingPatience.h"
#include "SelectionConnection.h"

namespace Kestrune {

/// One question to the owner of the clipboard, and its answer as it comes in. Never waits for the owner: the
/// thread hands over the events, and calls `expire` at the deadline.
class SelectionReader
{
public:
    using Clock = ReadingPatience::Clock;

    struct Question
    {
        xcb_atom_t target;
        xcb_timestamp_t time; ///< When the owner that is asked took the selection.
        qsizetype limit;      ///< Bytes; a longer answer is not read.
        uint8_t format;       ///< Bits an item; another format is no answer.
    };

    struct Answer
    {
        QByteArray data;
        xcb_atom_t type; ///< As the owner named it.
    };

    SelectionReader(SelectionConnection &x, xcb_atom_t selection, const Question &question);
    ~SelectionReader();
    Q_DISABLE_COPY_MOVE(SelectionReader)

    void handle(const xcb_generic_event_t &event);

    /// The selection changed hands, by an event numbered `sequence`; `gone` when it has no owner now.
    void ownerChanged(uint32_t sequence, bool gone);

    Clock::time_point deadline() const { return m_patience.deadline(); }
    void expire(Clock::time_point now);

    bool isFinished() const { return m_state == State::Complete || m_state == State::Failed; }

    /// The whole answer; none while it is coming in, and when it failed.
    std::optional<Answer> take();

private:
    enum class State { Asked, Incremental, Complete, Failed };

    struct Value
    {
        xcb_atom_t type;
        uint8_t format;
        qsizetype size; ///< Bytes.
    };

    std::optional<Value> lookAtProperty() const;
    void begin();
    void beginIncrements();
    void readIncrement();
    bool readProperty(const Value &value);
    void fail() { m_state = State::Failed; }

    SelectionConnection &m_x;
    Question m_question;
    xcb_window_t m_window;
    uint32_t m_sequence = 0; ///< Of the request to the owner.
    State m_state = State::Asked;
    bool m_ownerIsDone = false; ///< It writes no more to the window.
    ReadingPatience m_patience; ///< Hurried once another owner turned up.
    Answer m_answer{{}, XCB_ATOM_NONE};
};

} // namespace Kestrune
