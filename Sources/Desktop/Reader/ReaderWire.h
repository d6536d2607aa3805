#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

/// What the program and its reader say to each other over a socket that keeps messages apart: a question with
/// two descriptors, a file to be read from its beginning and memory for what is found, and then its answer. A
/// reader is started for one kind of question, which is its only argument. Both are built together, so the
/// layout is the compiler's.
namespace Kestrune::ReaderWire {

constexpr auto kPictures = "pictures";
constexpr auto kCalendars = "calendars";

constexpr int kSocket = 3;       ///< The reader's end.
constexpr int kLongestWork = 5;  ///< Seconds of the processor's for one picture or calendar,
constexpr int kLongest = 30;     ///< and of the clock's; the reader ends itself then.
constexpr int kLongestIdle = 15; ///< Seconds without a question, after which the reader ends, too.

constexpr int kPixelBytes = 4; ///< Premultiplied ARGB.
constexpr int kDigestBytes = 16;
constexpr int kMostSide = 1024;        ///< Pixels.
constexpr int kMostWhole = 32'000'000; ///< Pixels of a picture that is given as it is.

/// Bytes of what was found in calendars.
constexpr std::uint32_t kMostFound = std::uint32_t{32} << 20;

struct PictureQuestion
{
    std::int32_t fit;
    std::int32_t formats;
    std::int32_t side;   ///< Of no meaning for a whole picture.
    std::int32_t pixels; ///< The memory has room for as many.
    std::int64_t mostPixels;
};

/// The rows of pixels follow each other in the memory. Zero: no picture.
struct PictureAnswer
{
    std::int32_t width;
    std::int32_t height;
    std::int32_t wholeWidth;
    std::int32_t wholeHeight;
    std::array<char, kDigestBytes> thumbnailOf;
    std::int64_t thumbnailTime;
};

/// The file holds a CalendarQuestion.
struct CalendarsQuestion
{
    std::uint32_t size; ///< Bytes of the file.
};

/// The memory holds a CalendarAnswer.
struct CalendarsAnswer
{
    std::uint32_t size; ///< Bytes of it; zero when there is no room for it.
};

static_assert(std::is_trivially_copyable_v<PictureQuestion> && std::is_trivially_copyable_v<PictureAnswer>);

} // namespace Kestrune::ReaderWire
