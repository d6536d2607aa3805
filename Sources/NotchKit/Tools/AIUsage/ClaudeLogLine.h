#pragma once

#include <QtGlobal>

#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace simdjson::dom {
class parser;
}

namespace Kestrune {

/// What tells responses apart: 128 bits of a hash of the response's names, which no two are expected to
/// share, so that a week of responses needs little memory.
struct ResponseKey
{
    quint64 high = 0;
    quint64 low = 0;

    /// The key of a message's id followed directly by its request's.
    static ResponseKey of(std::string_view message, std::string_view request);

    bool operator==(const ResponseKey &) const = default;
};

inline std::size_t qHash(const ResponseKey &key, std::size_t seed = 0) { return key.low ^ seed; }

/// One logged response.
struct LoggedResponse
{
    std::optional<ResponseKey> key; ///< Nothing for a response without an id, which is like no other.
    qint64 date = 0;                ///< Milliseconds since 1970.
    qint64 tokens = 0;              ///< Without those read from a cache.

    bool operator==(const LoggedResponse &) const = default;
};

/// The sum, or the nearest number there is.
qint64 saturatingSum(qint64 a, qint64 b);

/// Reads lines of Claude Code's logs. Keeps memory in proportion to the longest line. One object a thread.
class ClaudeLogLine
{
public:
    ClaudeLogLine();
    ~ClaudeLogLine();

    /// The response that `line` logs, or nothing. UsageLines::kPadding bytes behind the line must be
    /// readable. May change the line. Of a member that occurs twice, the last counts.
    std::optional<LoggedResponse> parse(std::span<char> line);

private:
    std::unique_ptr<simdjson::dom::parser> m_parser;
};

} // namespace Kestrune
