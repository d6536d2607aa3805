#pragma once

#include "LogFolder.h"

#include <functional>
#include <span>
#include <vector>

namespace Kestrune {

/// How far a log was read.
struct LogPosition
{
    qint64 lineStart = 0; ///< Every line before was handed out.
    qint64 scanned = 0;   ///< No line ends between `lineStart` and here.
    bool found = false;   ///< The word was met in between.
};

/// Finds the complete lines of logs that hold the word "usage" in its double quotes. It works on large
/// blocks and looks for lines only around the word, so that most bytes are looked at once, at the speed of
/// memory. Needs the memory of one block and of the longest line with the word. Not thread-safe: one
/// object a thread.
class UsageLines
{
public:
    /// A longer line is left out: no response is near it, and one line must not take all memory.
    static constexpr qint64 kLongestLine = 4 << 20;

    /// How many bytes may be read behind a line; what they hold means nothing.
    static constexpr std::size_t kPadding = 64;

    /// Takes a line without its line feed; it may change it.
    using Handler = std::function<void(std::span<char> line)>;

    UsageLines();

    /// Hands out what was appended to `file` since `position`, in order, and moves `position`. Bytes after
    /// the last line feed wait for the rest of their line. False when it ended early, on `stop` or where the
    /// file could not be read: then calling it again goes on from there.
    bool read(const OpenFile &file, LogPosition &position, const StopFlag &stop, const Handler &handler);

    /// The first place of the quoted word in the text; `end` without one.
    static char *find(char *begin, char *end);

private:
    void handOut(char *begin, char *end, const Handler &handler) const;
    void handOutLong(const OpenFile &file, qint64 start, qint64 end, const Handler &handler);

    std::vector<char> m_block;
    std::vector<char> m_line;
};

} // namespace Kestrune
