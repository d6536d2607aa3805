#include "UsageLines.h"

#include <algorithm>
#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Kestrune {

namespace {

constexpr char kWord[] = "\"usage\"";
constexpr qint64 kWordSize = sizeof kWord - 1;
constexpr qint64 kReadSize = 256 << 10;

/// A shorter unfinished line is looked at afresh, so that one that was rewritten in place counts right. A
/// longer one is taken to grow at its end only.
constexpr qint64 kShortLine = 1 << 20;

char *lastLineFeed(char *begin, char *end)
{
    return static_cast<char *>(memrchr(begin, '\n', static_cast<std::size_t>(end - begin)));
}

char *firstLineFeed(char *begin, char *end)
{
    return static_cast<char *>(std::memchr(begin, '\n', static_cast<std::size_t>(end - begin)));
}

#ifdef __SSE2__
/// Looks at sixteen places at once for both quotes and a letter between; moves `begin` past the places it
/// ruled out, to less than a block from `end` or to a hit.
bool findFast(char *&begin, const char *end)
{
    const auto load = [](const char *from) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
    };
    const __m128i quote = _mm_set1_epi8('"');
    const __m128i letter = _mm_set1_epi8('g');
    for (; end - begin >= 16 + kWordSize; begin += 16) {
        const __m128i quotes = _mm_and_si128(_mm_cmpeq_epi8(load(begin), quote),
                                             _mm_cmpeq_epi8(load(begin + kWordSize - 1), quote));
        const __m128i match = _mm_and_si128(quotes, _mm_cmpeq_epi8(load(begin + 4), letter));
        for (auto places = static_cast<unsigned>(_mm_movemask_epi8(match)); places; places &= places - 1) {
            char *place = begin + std::countr_zero(places);
            if (std::memcmp(place, kWord, kWordSize) == 0) {
                begin = place;
                return true;
            }
        }
    }
    return false;
}
#else
bool findFast(char *&, const char *) { return false; }
#endif

} // namespace

UsageLines::UsageLines()
    : m_block(kReadSize + kPadding)
{}

char *UsageLines::find(char *begin, char *end)
{
    if (begin == end || findFast(begin, end))
        return begin;
    void *found = memmem(begin, static_cast<std::size_t>(end - begin), kWord, kWordSize);
    return found ? static_cast<char *>(found) : end;
}

bool UsageLines::read(const OpenFile &file, LogPosition &position, const StopFlag &stop,
                      const Handler &handler)
{
    const qint64 size = file.stamp().size;
    if (position.scanned - position.lineStart < kShortLine)
        position = {position.lineStart, position.lineStart, false};
    while (position.scanned < size) {
        // The word may straddle two blocks.
        const qint64 start = std::max(position.lineStart, position.scanned - (kWordSize - 1));
        const qint64 wanted = std::min(kReadSize, size - start);
        if (stop || file.read(m_block.data(), wanted, start) < wanted)
            return false;
        char *begin = m_block.data();
        char *end = begin + wanted;
        char *last = lastLineFeed(begin, end);
        char *lines = begin;
        if (!last || start > position.lineStart) {
            char *stretch = last ? firstLineFeed(begin, end) : end;
            position.found = position.found || find(begin, stretch) != stretch;
            position.scanned = start + wanted;
            if (!last)
                continue;
            if (position.found)
                handOutLong(file, position.lineStart, start + (stretch - begin), handler);
            lines = stretch + 1;
        }
        handOut(lines, last + 1, handler);
        const qint64 next = start + (last + 1 - begin);
        // What is left of a block is read again with what follows it: no line is ever put together.
        position = {next, next, false};
        if (next + (end - last - 1) == size)
            position = {next, size, find(last + 1, end) != end};
    }
    return true;
}

void UsageLines::handOut(char *begin, char *end, const Handler &handler) const
{
    for (char *word = find(begin, end); word != end; word = find(begin, end)) {
        char *before = lastLineFeed(begin, word);
        char *line = before ? before + 1 : begin;
        char *feed = firstLineFeed(word, end);
        handler({line, feed});
        begin = feed + 1;
    }
}

void UsageLines::handOutLong(const OpenFile &file, qint64 start, qint64 end, const Handler &handler)
{
    const qint64 size = end - start;
    if (size > kLongestLine)
        return;
    m_line.resize(static_cast<std::size_t>(size) + kPadding);
    if (file.read(m_line.data(), size, start) == size)
        handler({m_line.data(), static_cast<std::size_t>(size)});
}

} // namespace Kestrune
