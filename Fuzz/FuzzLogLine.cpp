// A stretch of a Claude Code log, as the reader gets it from a file: the word is found, the lines around it
// are read, nothing else matters.

#include "NotchKit/Tools/AIUsage/ClaudeLogLine.h"
#include "NotchKit/Tools/AIUsage/UsageLines.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <vector>

using namespace Kestrune;

namespace {

/// The line in memory of just its size, so that a byte too far is noticed.
std::optional<LoggedResponse> parse(ClaudeLogLine &parser, std::span<const char> line)
{
    std::vector<char> copy(line.size() + UsageLines::kPadding);
    std::ranges::copy(line, copy.begin());
    return parser.parse({copy.data(), line.size()});
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static ClaudeLogLine parser;
    std::vector<char> text(data, data + size);
    char *end = text.data() + size;
    const auto found = static_cast<size_t>(UsageLines::find(text.data(), end) - text.data());
    if (found != std::min(std::string_view(text.data(), size).find("\"usage\""), size))
        std::abort();
    // What was parsed before must not matter.
    const auto response = parse(parser, text);
    ClaudeLogLine fresh;
    if (response != parse(fresh, text))
        std::abort();
    return 0;
}
