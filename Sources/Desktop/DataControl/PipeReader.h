#pragma once

#include "Desktop/Compositor/Descriptor.h"
#include "Desktop/Pasteboard/ReadingPatience.h"

#include <QByteArray>
#include <QtGlobal>

namespace Kestrune {

/// The answer of the clipboard's owner as it comes in through a pipe. Never waits.
class PipeReader
{
public:
    using Clock = ReadingPatience::Clock;

    /// An answer longer than `limit` bytes is not read.
    PipeReader(Descriptor pipe, qsizetype limit);

    /// To be read from when it can be; -1 when nothing more is read.
    int descriptor() const { return m_pipe.get(); }
    void read();

    /// A pipe ends in the same way when its writer is through and when it dies. A moment later, once, the
    /// compositor is to be asked for what it knows: the answer is whole when `confirm` comes before
    /// `overtaken`.
    bool wantsConfirmation(Clock::time_point now);
    void confirm();

    /// Another program has copied, or, when `gone`, there is nothing any more.
    void overtaken(bool gone);

    /// When to call one of `expire` and `wantsConfirmation` next.
    Clock::time_point deadline() const;
    void expire(Clock::time_point now);

    bool isFinished() const { return m_state == State::Complete || m_state == State::Failed; }

    /// The whole answer; none while it is coming in, and when it failed.
    std::optional<QByteArray> take();

private:
    enum class State { Reading, Ended, Asked, Complete, Failed };

    void end(State state);

    Descriptor m_pipe;
    qsizetype m_limit;
    State m_state = State::Reading;
    ReadingPatience m_patience;
    Clock::time_point m_askFrom; ///< Once it has ended.
    QByteArray m_answer;
};

} // namespace Kestrune
