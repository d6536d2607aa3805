#pragma once

#include "NotchKit/Tools/AIUsage/UsageFigures.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>

#include <algorithm>
#include <limits>

namespace Kestrune {

using namespace Qt::StringLiterals;

/// The log reader again, as plainly as it can be written, which remembers nothing: what the real one is
/// compared with.
struct SlowLogReader
{
    explicit SlowLogReader(const QString &root)
        : m_root(root)
    {}

    std::optional<ClaudeUsage> summary(const QDateTime &now)
    {
        m_weekAgo = now.addDays(-7);
        m_entries.clear();
        QStringList paths;
        QDirIterator files(m_root, {u"*.jsonl"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
        paths.sort();
        for (const QString &path : paths) {
            if (QFileInfo(path).lastModified() >= m_weekAgo)
                read(path);
        }
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
        const QByteArray content = file.readAll();
        for (const QByteArray &line : content.left(content.lastIndexOf('\n') + 1).split('\n'))
            enter(line);
    }

    void enter(const QByteArray &line)
    {
        // The parser lets bytes pass in strings that no JSON may hold.
        if (!line.contains("\"usage\"") || line.contains('\0') || !line.isValidUtf8() ||
            line.size() > 4 << 20)
            return;
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        const QJsonValue message = object["message"_L1];
        const QJsonValue usage = message["usage"_L1];
        const QDateTime date = timestamp(object["timestamp"_L1].toString());
        if (!usage.isObject() || !date.isValid() || date <= m_weekAgo)
            return;
        const QString key = message["id"_L1].isString()
                                ? u'k' + message["id"_L1].toString() + object["requestId"_L1].toString()
                                : u"unnamed %1"_s.arg(++m_unnamed);
        m_entries[key] = {date, integer(usage["input_tokens"_L1]) + integer(usage["output_tokens"_L1]) +
                                    integer(usage["cache_creation_input_tokens"_L1])};
    }

    static QDateTime timestamp(const QString &text)
    {
        static const QRegularExpression form(uR"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d+(Z|[+-]\d\d:\d\d)$)"_s);
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
    QDateTime m_weekAgo;
    QMap<QString, Entry> m_entries;
    int m_unnamed = 0;
};

} // namespace Kestrune
