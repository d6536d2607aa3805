#pragma once

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <span>

#include <fcntl.h>
#include <sys/stat.h>

namespace Kestrune {

using namespace Qt::StringLiterals;

/// A folder of logs to which things happen, good and bad, as the bytes say.
struct RandomLogs
{
    RandomLogs(const QString &folder, std::span<const uint8_t> bytes)
        : m_folder(folder)
        , m_bytes(bytes)
    {}

    bool atEnd() const { return m_bytes.empty(); }

    /// A number that the next bytes make, as many as it needs; 0 at the end of them.
    unsigned below(unsigned end)
    {
        quint64 number = 0;
        for (quint64 range = 1; range < end && !atEnd(); range <<= 8) {
            number = number << 8 | m_bytes.front();
            m_bytes = m_bytes.subspan(1);
        }
        return static_cast<unsigned>(number % end);
    }

    void change(const QDateTime &now)
    {
        const QString path = anyPath();
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        const unsigned event = below(12);
        if (event == 0) {
            file.remove();
            return;
        }
        if (event == 1) { // cut anywhere
            if (file.size() > 0)
                file.resize(beginning(file.size()));
        } else if (event == 2) { // replaced by another file
            file.setFileName(path + u".new"_s);
            append(file, line(now) + line(now));
            std::rename(qPrintable(file.fileName()), qPrintable(path));
        } else if (event == 4) { // half a line, which the next append may or may not complete
            const QByteArray whole = line(now);
            append(file, whole.left(beginning(whole.size())));
        } else if (event > 4) {
            for (unsigned count = below(4) + 1; count > 0; --count)
                append(file, line(now));
        }
        touch(path, event == 3 ? now.addDays(-8) : now); // not written for a week
    }

    QByteArray line(const QDateTime &now)
    {
        static const QList<QByteArray> broken{"",
                                              "\r",
                                              "{\"usage\":",
                                              "[\"usage\"]",
                                              "\"usage\"",
                                              "{\"message\":{\"usage\":{}}}",
                                              "{\"message\":\"usage\",\"usage\":{}}",
                                              "{\"message\":{\"usage\":[]},\"timestamp\":\"x\"}",
                                              QByteArray(5000, '[') + "\"usage\"" + QByteArray(5000, ']')};
        if (below(8) == 0)
            return pick(broken) + '\n';
        QByteArray text = response(now);
        const auto place = static_cast<qsizetype>(below(static_cast<unsigned>(text.size())));
        const unsigned fault = below(16);
        if (fault <= 1)
            text.insert(place, fault == 0 ? '\0' : '\xff');
        else if (fault == 2)
            text.truncate(place);
        else if (fault == 3)
            text += '\r';
        return text + '\n';
    }

private:
    /// Less than the whole; never so much that an unfinished line is taken to grow at its end only.
    qint64 beginning(qint64 size) { return below(static_cast<unsigned>(std::min<qint64>(size, 900'000))); }

    const QByteArray &pick(const QList<QByteArray> &all)
    {
        return all.at(below(static_cast<unsigned>(all.size())));
    }

    QString anyPath()
    {
        static const QStringList places{u"a.jsonl"_s,         u"b/c.jsonl"_s,  u"b/d/e.jsonl"_s,
                                        u".hidden/f.jsonl"_s, u"b/.g.jsonl"_s, u"h.json"_s};
        return m_folder + u'/' + places.at(below(static_cast<unsigned>(places.size())));
    }

    QByteArray number()
    {
        static const QList<QByteArray> numbers{
            "0",     "12",   "-5",   "3.9", "-3.9", "1e3", "9007199254740993",
            "\"7\"", "true", "null", "{}",  "[1]",  "1e15"};
        return pick(numbers);
    }

    QByteArray member(const QByteArray &name, const QByteArray &value)
    {
        return below(8) == 0 ? QByteArray() : "\"" + name + "\":" + value + ",";
    }

    QByteArray timestamp(const QDateTime &now)
    {
        static const QList<QByteArray> bad{"\"2026-02-30T10:00:00.000Z\"", "\"2026-02-03T10:00:00Z\"",
                                           "\"2026-02-03 10:00:00.000Z\"", "1770000000", "null"};
        if (below(10) == 0)
            return pick(bad);
        const QDateTime date = now.addMSecs(3'600'000 - qint64(below(8 * 24 * 3600)) * 1000 - below(1000));
        const int zone = static_cast<int>(below(27)) - 12;
        const QDateTime local = below(2) ? date.toUTC() : date.toOffsetFromUtc(zone * 3600 + 1800);
        return '"' + local.toString(Qt::ISODateWithMs).toLatin1() + '"';
    }

    QByteArray padding()
    {
        switch (below(40)) {
        case 0: // spans blocks
            return pad(200'000 + below(400'000));
        case 1: // too long
            return below(4) ? QByteArray() : pad((4 << 20) + 1);
        case 2:
            return "\"pad\":" + QByteArray(200, '[') + QByteArray(200, ']') + ",";
        case 3: // half a surrogate pair
            return "\"pad\":\"\\\\ud83d \\ud83d\\ude00 cut \\ud83d\",";
        default:
            return {};
        }
    }

    /// So many, but in all no more than is soon written and read.
    QByteArray pad(qsizetype count)
    {
        m_pads -= count;
        return m_pads < 0 ? QByteArray() : "\"pad\":\"" + QByteArray(count, 'x') + "\",";
    }

    QByteArray response(const QDateTime &now)
    {
        const QByteArray usage = '{' + member("input_tokens", number()) + member("output_tokens", number()) +
                                 member("input_tokens", number()) + // twice: the last counts
                                 member("cache_creation_input_tokens", number()) +
                                 "\"cache_read_input_tokens\":" + number() + '}';
        const QByteArray id = below(9) ? "\"m" + QByteArray::number(below(30)) + '"' : "7";
        const QByteArray request = below(9) ? "\"" + QByteArray::number(below(3)) + '"' : "7";
        return '{' + padding() + member("requestId", request) + member("timestamp", timestamp(now)) +
               "\"message\":{" + member("id", id) + padding() + "\"usage\":" + usage + "}}";
    }

    static void append(QFile &file, const QByteArray &text)
    {
        if (file.open(QIODevice::Append)) {
            file.write(text);
            file.close();
        }
    }

    /// Each change has a time of its own, as changes by hand have.
    void touch(const QString &path, const QDateTime &time)
    {
        const timespec stamp{static_cast<time_t>(time.toSecsSinceEpoch()), ++m_touched * 1000};
        const timespec times[]{stamp, stamp};
        utimensat(AT_FDCWD, qPrintable(path), times, 0);
    }

    QString m_folder;
    std::span<const uint8_t> m_bytes;
    qsizetype m_pads = 10 << 20;
    long m_touched = 0;
};

} // namespace Kestrune
