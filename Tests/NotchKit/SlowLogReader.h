#pragma once

#include "NotchKit/Tools/AIUsage/UsageFigures.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QSet>

#include <cmath>

#include <sys/stat.h>

namespace Kestrune::Tests {

/// The log reader again, as plainly as it can be written: what the real one is compared with.
struct SlowLogReader
{
    explicit SlowLogReader(const QString &root)
        : m_root(root)
    {}

    std::optional<ClaudeUsage> summary(const QDateTime &now)
    {
        const QDateTime weekAgo = now.addDays(-7);
        QStringList paths;
        QDirIterator files(m_root, {QStringLiteral("*.jsonl")}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
        paths.sort();
        for (const QString &path : paths) {
            if (QFileInfo(path).lastModified() >= weekAgo)
                read(path);
        }
        m_entries.removeIf([&](QMap<QString, Entry>::iterator entry) { return entry->date <= weekAgo; });
        return m_entries.isEmpty() ? std::nullopt : std::optional(addUp(now));
    }

private:
    struct Entry
    {
        QDateTime date;
        qint64 tokens;
    };

    void read(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return;
        struct stat status = {};
        fstat(file.handle(), &status);
        const QByteArray content = file.readAll();
        if (m_inodes.value(path) != status.st_ino || m_offsets.value(path) > content.size())
            m_offsets[path] = 0;
        m_inodes[path] = status.st_ino;
        const qsizetype end = content.lastIndexOf('\n') + 1;
        if (end <= m_offsets.value(path))
            return;
        for (const QByteArray &line : content.mid(m_offsets[path], end - m_offsets[path]).split('\n'))
            enter(line);
        m_offsets[path] = end;
    }

    void enter(const QByteArray &line)
    {
        // The parser lets bytes pass in strings that no JSON may hold.
        if (!line.contains("\"usage\"") || line.contains('\0') || !line.isValidUtf8() ||
            line.size() > 4 << 20)
            return;
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        const QJsonValue message = object[QLatin1String("message")];
        const QJsonValue usage = message[QLatin1String("usage")];
        const QDateTime date = timestamp(object[QLatin1String("timestamp")].toString());
        if (!usage.isObject() || !date.isValid())
            return;
        const QString key = message[QLatin1String("id")].isString()
                                ? QLatin1Char('k') + message[QLatin1String("id")].toString() +
                                      object[QLatin1String("requestId")].toString()
                                : QStringLiteral("unnamed %1").arg(++m_unnamed);
        m_entries[key] = {date, integer(usage[QLatin1String("input_tokens")]) +
                                    integer(usage[QLatin1String("output_tokens")]) +
                                    integer(usage[QLatin1String("cache_creation_input_tokens")])};
    }

    static QDateTime timestamp(const QString &text)
    {
        static const QRegularExpression form(
            QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d+(Z|[+-]\d\d:\d\d)$)"));
        return form.match(text).hasMatch() ? QDateTime::fromString(text, Qt::ISODateWithMs) : QDateTime();
    }

    static qint64 integer(const QJsonValue &value)
    {
        return value.isDouble() ? value.toInteger(static_cast<qint64>(value.toDouble())) : 0;
    }

    ClaudeUsage addUp(const QDateTime &now) const
    {
        QList<Entry> entries = m_entries.values();
        std::ranges::sort(entries, {}, &Entry::date);
        ClaudeUsage usage;
        QDateTime start = entries.constFirst().date;
        qint64 block = 0;
        usage.peakBlockTokens = std::numeric_limits<qint64>::min();
        for (const Entry &entry : entries) {
            if (entry.date >= start.addSecs(18000)) {
                usage.peakBlockTokens = std::max(usage.peakBlockTokens, block);
                start = entry.date;
                block = 0;
            }
            block += entry.tokens;
            usage.weekTokens += entry.tokens;
            for (int day = 0; day < 7; ++day) {
                if (entry.date.toLocalTime().date() == now.toLocalTime().date().addDays(day - 6))
                    usage.dailyTokens[day] += entry.tokens;
            }
        }
        usage.peakBlockTokens = std::max(usage.peakBlockTokens, block);
        if (now < start.addSecs(18000)) {
            usage.blockTokens = block;
            usage.blockStart = start;
        }
        usage.weekMessages = entries.size();
        usage.lastActivity = entries.constLast().date;
        return usage;
    }

    QString m_root;
    QMap<QString, qint64> m_offsets;
    QMap<QString, ino_t> m_inodes;
    QMap<QString, Entry> m_entries;
    int m_unnamed = 0;
};

} // namespace Kestrune::Tests
