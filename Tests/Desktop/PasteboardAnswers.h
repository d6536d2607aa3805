#pragma once

#include "EndToEnd/Waiting.h"
#include "NotchKit/Platform/Pasteboard.h"
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

/// Asks for the text of an owner that turns public and secret all the time, as a reader would that trusts the
/// types. How often it was the public one; -1 once a secret was read.
inline int publicTexts(Pasteboard &pasteboard, int rounds)
{
    int read = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto seen = pasteboard.types();
        const auto text = pasteboard.string(); // Asked at once.
        const bool secret = wait(seen).contains(QLatin1String(Pasteboard::kConcealed));
        const auto answer = wait(text);
        if (!secret && answer == u"secret"_s)
            return -1;
        read += !secret && answer == u"public"_s ? 1 : 0;
    }
    qInfo("%d of %d texts were read between the changes", read, rounds);
    return read;
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
