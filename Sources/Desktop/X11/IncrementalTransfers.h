#pragma once

#include "SelectionConnection.h"

#include <chrono>
#include <optional>
#include <vector>

namespace Kestrune {

/// Answers that are too long for one property, on their way to the programs that asked for them: a piece is
/// written whenever the reader has taken the one before.
class IncrementalTransfers
{
public:
    using Clock = std::chrono::steady_clock;

    /// Longer answers go piece by piece.
    static constexpr qsizetype kPiece = qsizetype{256} * 1024;

    explicit IncrementalTransfers(SelectionConnection &x)
        : m_x(x)
    {}

    /// Announces the answer in the reader's property; it is still to be told. False when too many readers
    /// wait for theirs.
    bool start(xcb_window_t reader, xcb_atom_t property, xcb_atom_t type, const QByteArray &data);

    void handle(const xcb_generic_event_t &event);

    /// When the first reader has been silent for too long; none without readers.
    std::optional<Clock::time_point> deadline() const;

    /// Gives up the readers that have been silent for too long.
    void expire(Clock::time_point now);

private:
    struct Transfer
    {
        xcb_window_t reader;
        xcb_atom_t property;
        xcb_atom_t type;
        QByteArray data;
        qsizetype sent = 0;
        Clock::time_point deadline;
        bool finished = false;
    };

    void writePiece(Transfer &transfer);
    void giveUp(xcb_window_t reader);
    void removeFinished();

    SelectionConnection &m_x;
    std::vector<Transfer> m_transfers;
};

} // namespace Kestrune
