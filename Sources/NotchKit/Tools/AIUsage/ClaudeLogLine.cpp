#include "ClaudeLogLine.h"

#include "NotchKit/IsoTimestamp.h"
#include "UsageLines.h"

#include <simdjson.h>

#include <cmath>
#include <limits>

namespace Kestrune {

namespace {

using simdjson::dom::element;
using simdjson::dom::object;

static_assert(UsageLines::kPadding >= simdjson::SIMDJSON_PADDING);

std::optional<element> member(const object &parent, std::string_view name)
{
    std::optional<element> last;
    for (const auto field : parent) {
        if (field.key == name)
            last = field.value;
    }
    return last;
}

template <typename Type>
std::optional<Type> member(const object &parent, std::string_view name)
{
    const auto value = member(parent, name);
    Type result;
    if (!value || value->get(result) != simdjson::SUCCESS)
        return std::nullopt;
    return result;
}

qint64 truncated(double number)
{
    constexpr double kEnd = 9223372036854775808.0; // 2^63
    if (number >= kEnd)
        return std::numeric_limits<qint64>::max();
    return number < -kEnd ? std::numeric_limits<qint64>::min() : static_cast<qint64>(number);
}

qint64 integer(const object &parent, std::string_view name)
{
    const auto value = member(parent, name);
    if (!value)
        return 0;
    switch (value->type()) {
    case simdjson::dom::element_type::INT64:
        return value->get_int64().value_unsafe();
    case simdjson::dom::element_type::UINT64: // only numbers that an INT64 does not hold
        return std::numeric_limits<qint64>::max();
    case simdjson::dom::element_type::DOUBLE:
        return truncated(value->get_double().value_unsafe());
    default:
        return 0;
    }
}

std::optional<LoggedResponse> readResponse(const object &line)
{
    const auto message = member<object>(line, "message");
    const auto usage = message ? member<object>(*message, "usage") : std::nullopt;
    const auto timestamp = usage ? member<std::string_view>(line, "timestamp") : std::nullopt;
    const auto date = timestamp ? parseIsoTimestamp(*timestamp) : std::nullopt;
    if (!date)
        return std::nullopt;
    LoggedResponse response;
    response.date = *date;
    if (const auto id = member<std::string_view>(*message, "id"))
        response.key =
            ResponseKey::of(*id, member<std::string_view>(line, "requestId").value_or(std::string_view()));
    for (const char *name : {"input_tokens", "output_tokens", "cache_creation_input_tokens"})
        response.tokens = saturatingSum(response.tokens, integer(*usage, name));
    return response;
}

/// The UTF-16 unit that "\uXXXX" at `place` stands for, if one is there.
std::optional<unsigned> escapedUnit(std::span<const char> line, std::size_t place)
{
    if (line.size() < place + 6 || line[place] != '\\' || line[place + 1] != 'u')
        return std::nullopt;
    unsigned unit = 0;
    for (const char digit : line.subspan(place + 2, 4)) {
        if (!std::isxdigit(static_cast<unsigned char>(digit)))
            return std::nullopt;
        const int lower = std::tolower(static_cast<unsigned char>(digit));
        unit = unit * 16 + static_cast<unsigned>(lower <= '9' ? lower - '0' : lower - 'a' + 10);
    }
    return unit;
}

/// Replaces escaped halves of surrogate pairs. Logs hold them where a text was cut within an emoji; the
/// parser refuses the whole line for one. False when there was none.
bool repairHalfPairs(std::span<char> line)
{
    bool repaired = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\')
            continue;
        const unsigned unit = escapedUnit(line, i).value_or(0);
        const unsigned next = escapedUnit(line, i + 6).value_or(0);
        const bool pair = unit >= 0xd800 && unit < 0xdc00 && next >= 0xdc00 && next < 0xe000;
        if (unit >= 0xd800 && unit < 0xe000 && !pair) {
            std::ranges::copy(std::string_view("\\ufffd"), line.begin() + static_cast<std::ptrdiff_t>(i));
            repaired = true;
        }
        i += pair ? 11 : 1;
    }
    return repaired;
}

} // namespace

qint64 saturatingSum(qint64 a, qint64 b)
{
    qint64 sum = 0;
    if (!__builtin_add_overflow(a, b, &sum))
        return sum;
    return b > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
}

ResponseKey ResponseKey::of(std::string_view message, std::string_view request)
{
    // FNV-1a over 128 bits.
    __extension__ using Wide = unsigned __int128;
    constexpr Wide kPrime = (Wide(1) << 88) + 0x13b;
    Wide hash = (Wide(0x6c62272e07bb0142) << 64) + 0x62b821756295c58d;
    for (const std::string_view part : {message, request}) {
        for (const char byte : part)
            hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    }
    return {static_cast<quint64>(hash >> 64), static_cast<quint64>(hash)};
}

ClaudeLogLine::ClaudeLogLine()
    : m_parser(std::make_unique<simdjson::dom::parser>())
{}

ClaudeLogLine::~ClaudeLogLine() = default;

std::optional<LoggedResponse> ClaudeLogLine::parse(std::span<char> line)
{
    object root;
    const auto read = [&] { return m_parser->parse(line.data(), line.size(), false).get(root); };
    simdjson::error_code error = read();
    if (error == simdjson::STRING_ERROR && repairHalfPairs(line))
        error = read();
    return error == simdjson::SUCCESS ? readResponse(root) : std::nullopt;
}

} // namespace Kestrune
