#include "KnownLogs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <array>

namespace Kestrune {

namespace {

constexpr quint64 kMemoryMark = 0x4b'75'73'61'67'65'00'01; // "Kusage" and the form's number.
constexpr qint64 kTailBytes = 4096;                        // bytes
constexpr std::size_t kHeadWords = 3;                      // words
constexpr std::size_t kLogWords = 12;
constexpr std::size_t kEntryWords = 4;
constexpr std::size_t kWordBytes = sizeof(quint64);

quint64 wordDigest(std::span<const quint64> words)
{
    // Multiply and fold, a word at a time.
    quint64 digest = 0x9e3779b97f4a7c15 ^ words.size();
    for (const quint64 word : words) {
        digest = (digest ^ word) * 0xff51afd7ed558ccd;
        digest ^= digest >> 32;
    }
    return digest;
}

void appendLog(std::vector<quint64> &words, const ResponseKey &id, const KnownLog &log)
{
    const auto signless = [](qint64 number) { return static_cast<quint64>(number); };
    words.insert(words.end(), {id.high, id.low, log.stamp.device, log.stamp.inode, signless(log.stamp.size),
                               signless(log.stamp.modified), signless(log.position.lineStart),
                               signless(log.position.scanned), log.position.found, log.tail,
                               signless(log.seen), log.entries.all().size()});
    for (const UsageEntry &entry : log.entries.all())
        words.insert(words.end(),
                     {entry.key.high, entry.key.low, signless(entry.date), signless(entry.tokens)});
}

/// The log that the words begin with, without its entries.
KnownLog logFrom(std::span<const quint64> words)
{
    const auto number = [words](std::size_t index) { return static_cast<qint64>(words[index]); };
    return {.stamp = {words[2], words[3], number(4), number(5)},
            .position = {number(6), number(7), words[8] != 0},
            .tail = words[9],
            .seen = number(10),
            .entries = {}};
}

LogEntries entriesFrom(std::span<const quint64> words)
{
    std::vector<UsageEntry> entries(words.size() / kEntryWords);
    static_assert(sizeof(UsageEntry) == kEntryWords * kWordBytes);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto entry = words.subspan(i * kEntryWords, kEntryWords);
        entries[i] = {{entry[0], entry[1]}, static_cast<qint64>(entry[2]), static_cast<qint64>(entry[3])};
    }
    return LogEntries(std::move(entries));
}

} // namespace

quint64 KnownLog::tailOf(const OpenFile &file, qint64 lineStart)
{
    std::array<quint64, kTailBytes / kWordBytes> words{};
    const qint64 size = std::min(lineStart, kTailBytes);
    const qint64 read = file.read(reinterpret_cast<char *>(words.data()), size, lineStart - size);
    return wordDigest(words) ^ static_cast<quint64>(read);
}

std::vector<quint64> KnownLogs::encoded() const
{
    std::size_t size = kHeadWords + 1;
    for (const auto &[id, log] : logs)
        size += kLogWords + kEntryWords * log.entries.all().size();
    std::vector<quint64> words{kMemoryMark, static_cast<quint64>(latest), logs.size()};
    words.reserve(size);
    for (const auto &[id, log] : logs)
        appendLog(words, id, log);
    words.push_back(wordDigest(words));
    return words;
}

KnownLogs KnownLogs::decoded(std::span<const quint64> words)
{
    if (words.size() <= kHeadWords || words[0] != kMemoryMark ||
        words.back() != wordDigest(words.first(words.size() - 1)))
        return {};
    KnownLogs known;
    known.latest = static_cast<qint64>(words[1]);
    auto left = words.subspan(kHeadWords, words.size() - kHeadWords - 1);
    while (left.size() >= kLogWords) {
        const auto head = left.first(kLogWords);
        left = left.subspan(kLogWords);
        if (head.back() > left.size() / kEntryWords)
            return {};
        KnownLog &log = known.logs[{head[0], head[1]}];
        log = logFrom(head);
        log.entries = entriesFrom(left.first(head.back() * kEntryWords));
        left = left.subspan(head.back() * kEntryWords);
    }
    return left.empty() && known.logs.size() == words[2] ? std::move(known) : KnownLogs();
}

KnownLogs KnownLogs::readFrom(const QString &path)
{
    const OpenFile file(QFile::encodeName(path).toStdString());
    const qint64 size = file.isOpen() ? file.stamp().size : 0;
    if (size > kMostBytes || size % qint64(kWordBytes) != 0)
        return {};
    std::vector<quint64> words(static_cast<std::size_t>(size) / kWordBytes);
    if (file.isOpen() && file.read(reinterpret_cast<char *>(words.data()), size, 0) == size)
        return decoded(words);
    return {};
}

bool KnownLogs::write(std::span<const quint64> words, const QString &path)
{
    const auto bytes = std::as_bytes(words);
    QSaveFile file(path);
    if (std::ssize(bytes) > kMostBytes || !QDir().mkpath(QFileInfo(path).path()) ||
        !file.open(QIODevice::WriteOnly) || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner))
        return false;
    file.write(reinterpret_cast<const char *>(bytes.data()), std::ssize(bytes));
    return file.commit();
}

} // namespace Kestrune
