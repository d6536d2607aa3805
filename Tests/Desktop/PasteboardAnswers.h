#pragma once

#include "EndToEnd/Waiting.h"
#include "Support/TestRegistry.h"

#include <QFuture>
#include <QRandomGenerator>

constexpr int kMegabyte = 1024 * 1024;
inline const QString kText =
    u"Zwölf Boxkämpfer · עברית · العربية · 漢字 · 👩‍👩‍👧‍👦\nnext line\t"_s;

/// Bytes that no two pieces of are alike.
inline QByteArray random(qsizetype size)
{
    QList<quint32> words(size / 4);
    QRandomGenerator(1).fillRange(words.data(), words.size());
    return {reinterpret_cast<const char *>(words.constData()), size};
}

/// The answer, or an empty one with a word in the test's log when none was given.
template <typename Answer>
Answer wait(const QFuture<Answer> &future)
{
    if (!waitUntil([&] { return future.isFinished(); }) || future.resultCount() != 1) {
        qWarning("a question was not answered");
        return {};
    }
    return future.result();
}

/// How often this program's thread of that name has gone to sleep; -1 when there is none.
inline qint64 timesAsleep(const QByteArray &thread)
{
    const QDir tasks(u"/proc/self/task"_s);
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QByteArray status = readFile(tasks.filePath(task + u"/status"_s));
        if (status.startsWith("Name:\t" + thread + '\n'))
            return status.mid(status.indexOf("\nvoluntary_ctxt_switches:") + 25).split('\n')[0].toLongLong();
    }
    return -1;
}
