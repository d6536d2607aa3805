#pragma once

#include "LogFolder.h"
#include "UsageLedger.h"
#include "UsageLines.h"

#include <QString>

#include <unordered_map>

namespace Kestrune {

/// What is known of a log that was read.
struct KnownLog
{
    FileStamp stamp;
    LogPosition position;
    quint64 tail = 0; ///< Digest of the bytes before the position's line.
    qint64 seen = 0;  ///< When the log was last found, ms since 1970.
    LogEntries entries;

    /// What `tail` is for the file as it is now, up to `lineStart`; changes with the 4 KiB before.
    static quint64 tailOf(const OpenFile &file, qint64 lineStart);
};

/// The logs that were read, and how they are kept in a file over a restart. That holds hashes of paths and
/// of the names of responses, times and counts, and nothing else of the logs.
struct KnownLogs
{
    struct Hash
    {
        std::size_t operator()(const ResponseKey &key) const { return key.low; }
    };

    std::unordered_map<ResponseKey, KnownLog, Hash> logs; ///< By the hash of the path.
    qint64 latest = 0;                                    ///< The last look, ms since 1970.

    /// As the file's 64-bit words, the last one a digest of the others.
    std::vector<quint64> encoded() const;

    /// From such words; empty where any of them is not as it was written. Costs as much as it gives.
    static KnownLogs decoded(std::span<const quint64> words);

    /// Both of a whole file. More than `kMostBytes` are neither read nor written; what is written replaces
    /// the file at once, for the user alone.
    static constexpr qint64 kMostBytes = 32 << 20;
    static KnownLogs readFrom(const QString &path);
    static bool write(std::span<const quint64> words, const QString &path);
};

} // namespace Kestrune
