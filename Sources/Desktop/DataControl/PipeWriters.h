#pragma once

#include "Desktop/Compositor/Descriptor.h"

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <optional>
#include <span>
#include <vector>

#include <poll.h>

namespace Kestrune {

/// Content on its way to the programs that paste it, each through a pipe of its own and as fast as it reads.
class PipeWriters
{
public:
    using Clock = std::chrono::steady_clock;

    /// Writes the content to the reader, which is closed at the end. Where there are too many, the one that
    /// has been silent longest is given up. Anything but a pipe or a socket could hang, and gets nothing.
    void add(Descriptor reader, const QByteArray &content);

    /// Adds those that are to be polled.
    void addTo(std::vector<pollfd> &polled) const;

    /// Writes what they take; `polled` is what `addTo` added.
    void write(std::span<const pollfd> polled);

    /// When the first reader has been silent for too long; none without readers.
    std::optional<Clock::time_point> deadline() const;

    /// Gives up the readers that have been silent for too long.
    void expire(Clock::time_point now);

private:
    struct Writer
    {
        Descriptor reader;
        QByteArray content;
        qsizetype sent = 0;
        Clock::time_point deadline;
    };

    static void writePiece(Writer &writer);

    std::vector<Writer> m_writers;
};

} // namespace Kestrune
