#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

/// What the program and its reader say to each other over a socket that keeps messages apart: a question with
/// two descriptors, a file to be read from its beginning and memory for the pixels, and then its answer. Both
/// are built together, so the layout is the compiler's.
namespace Kestrune::ReaderWire {

constexpr int kSocket = 3;     ///< The reader's end.
constexpr int kPixelBytes = 4; ///< Premultiplied ARGB.
constexpr int kDigestBytes = 16;
constexpr int kMostSide = 1024;  ///< Pixels.
constexpr int kLongest = 10;     ///< Seconds for one answer; the reader ends itself then.
constexpr int kLongestIdle = 15; ///< Seconds without a question, after which the reader ends, too.

struct Question
{
    std::int32_t fit;
    std::int32_t formats;
    std::int32_t side; ///< The memory has as many pixels each way.
    std::int64_t mostPixels;
};

/// The rows of pixels follow each other in the memory. Zero: no picture.
struct Answer
{
    std::int32_t width;
    std::int32_t height;
    std::int32_t wholeWidth;
    std::int32_t wholeHeight;
    std::array<char, kDigestBytes> thumbnailOf;
    std::int64_t thumbnailTime;
};

static_assert(std::is_trivially_copyable_v<Question> && std::is_trivially_copyable_v<Answer>);

} // namespace Kestrune::ReaderWire
