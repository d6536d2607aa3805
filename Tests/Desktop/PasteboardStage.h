#pragma once

#include "EndToEnd/ChildProcess.h"
#include "EndToEnd/Waiting.h"
#include "NotchKit/Platform/Pasteboard.h"
#include "Support/TestRegistry.h"

#include <QFuture>
#include <QRandomGenerator>

#include <atomic>

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

/// The adapter in a session, and the programs that it exchanges with.
template <typename Adapter>
struct PasteboardStage
{
    /// A new adapter, and none of the programs.
    void reset(const QByteArray &display)
    {
        programs.clear();
        pasteboard = std::make_unique<Adapter>(display);
        pasteboard->types().waitForFinished(); // Answered once it watches.
    }

    ChildProcess &add()
    {
        programs.push_back(std::make_unique<ChildProcess>(environment));
        return *programs.back();
    }
    bool start(const QString &program, const QStringList &arguments)
    {
        return add().launch(program, arguments);
    }
    /// One of the tests' own programs.
    static QString beside(const QString &program)
    {
        return QCoreApplication::applicationDirPath() + u'/' + program;
    }

    /// Returns once the adapter has seen the copy, which takes no more than `limit` milliseconds.
    bool copied(const std::function<bool()> &copy, qint64 limit = 60'000)
    {
        const qint64 before = pasteboard->changeCount();
        return copy() && waitUntil([&] { return pasteboard->changeCount() > before; }, limit);
    }

    /// Returns once the content is the session's.
    void write(const PasteboardContent &content)
    {
        pasteboard->write(content);
        pasteboard->types().waitForFinished();
    }

    /// What a program says before it ends.
    QByteArray output(const QString &program, const QStringList &arguments) const
    {
        ChildProcess process(environment);
        if (!process.launch(program, arguments) || !process.waitForFinished(120000))
            return {};
        return process.readAllStandardOutput();
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::unique_ptr<Adapter> pasteboard;
    std::vector<std::unique_ptr<ChildProcess>> programs; ///< The last one started is the last here.
};

/// What an adapter does in every kind of session.
template <typename Stage>
class PasteboardTest : public QObject
{
protected:
    QStringList types() { return wait(m_stage->pasteboard->types()); }
    QString string() { return wait(m_stage->pasteboard->string()).value_or(QString()); }
    QByteArray picture() { return wait(m_stage->pasteboard->picture()).value_or(EncodedPicture()).data; }

    /// A program copies for it, and pastes what it wrote.
    void exchange(const QString &type, const QByteArray &bytes, const QString &client = {})
    {
        const bool isText = type == "text/plain"_L1;
        QVERIFY(m_stage->copy(type, bytes, client));
        QVERIFY(types().contains(type));
        const EncodedPicture got = wait(m_stage->pasteboard->picture()).value_or(EncodedPicture());
        QCOMPARE(got.type, isText ? QString() : type);
        if (client == "gtk"_L1 && !isText) // Encodes the picture anew.
            QCOMPARE(QImage::fromData(got.data), QImage::fromData(bytes));
        else
            QVERIFY(isText ? string().toUtf8() == bytes : got.data == bytes && string().isEmpty());
        m_stage->write(isText ? PasteboardContent(QString::fromUtf8(bytes))
                              : PasteboardContent(EncodedPicture{bytes, type}));
        m_stage->programs.clear(); // Nobody else can answer.
        QVERIFY(m_stage->paste(type, client) == bytes);
        QVERIFY(isText ? string().toUtf8() == bytes : picture() == bytes); // Its own takes the same way.
    }

    /// What was written is given in each form, which is made when it is wanted and not twice.
    void givesEveryForm()
    {
        std::atomic<int> made = 0;
        PasteboardContent content(fileUrls({u"/tmp/a b.jpg"_s}));
        content.html = "<b>x</b>";
        content.pictures = {{u"image/jpeg"_s, [] { return "as it came"_ba; }},
                            {u"image/png"_s, [&] { return "made "_ba + QByteArray::number(++made); }},
                            {u"image/tiff"_s, [] { return QByteArray(); }}};
        m_stage->write(content);
        QCOMPARE(types(), (QStringList{u"image/jpeg"_s, u"image/png"_s, u"image/tiff"_s, u"text/uri-list"_s,
                                       u"text/plain"_s, u"text/html"_s}));
        QCOMPARE(made, 0);
        for (const auto &[type, bytes] :
             QList<std::pair<QString, QByteArray>>{{u"image/png"_s, "made 1"},
                                                   {u"image/png"_s, "made 1"},
                                                   {u"image/jpeg"_s, "as it came"},
                                                   {u"image/tiff"_s, ""},
                                                   {u"text/uri-list"_s, "file:///tmp/a%20b.jpg\r\n"},
                                                   {u"text/plain"_s, "/tmp/a b.jpg"},
                                                   {u"text/html"_s, "<b>x</b>"}})
            QCOMPARE(m_stage->paste(type), bytes);
        QCOMPARE(wait(m_stage->pasteboard->html()), "<b>x</b>"_ba);
        m_stage->write(u"nothing beside"_s); // What was made for stays no longer than this.
    }

    /// The counter stands at `count`, and a rogue may copy again.
    void countsOn(qint64 count)
    {
        QCOMPARE(m_stage->pasteboard->write(kText), count + 1);
        QCOMPARE(m_stage->pasteboard->write(kText), count + 2);
        QCOMPARE(types(), QStringList{u"text/plain"_s});
        QCOMPARE(string(), kText);
        QCOMPARE(m_stage->pasteboard->changeCount(), count + 2);
        m_stage->programs.back()->write("again\n");
        QTRY_COMPARE(m_stage->pasteboard->changeCount(), count + 3);
        m_stage->programs.back()->killNow();
        QTRY_COMPARE(types(), QStringList());
        QCOMPARE(m_stage->pasteboard->changeCount(), count + 3);
    }

    /// An owner of the kind that the row names gives nothing, and holds nobody up.
    void meetRogue(bool silent)
    {
        QVERIFY(m_stage->startRogue(
            {QString::fromLatin1(QTest::currentDataTag()), u"UTF8_STRING"_s, u"image/png"_s}));
        QElapsedTimer tick;
        qint64 longest = 0;
        QTimer poll;
        poll.callOnTimeout([&] { longest = std::max(longest, tick.restart()); });
        poll.setTimerType(Qt::PreciseTimer);
        poll.start(1000 / 30);
        tick.start();
        const auto seen = m_stage->pasteboard->types();
        const auto bitmap = m_stage->pasteboard->picture();
        const qint64 time = timeUntil([&] { return bitmap.isFinished(); });
        QVERIFY2(time >= (silent ? 1900 : 0), qPrintable(QString::number(time)));
        QCOMPARE(wait(bitmap), std::nullopt);
        qInfo("empty after %lld ms; longest gap between two ticks of 33 ms: %lld ms", time, longest);
        QVERIFY2(longest < 1900, "the main thread waited for the owner");
        m_seen = wait(seen);
        // The next copy is read as if nothing had been.
        QVERIFY(m_stage->copy(u"text/plain"_s, kText.toUtf8()));
        QVERIFY(!types().isEmpty());
        QCOMPARE(string(), kText);
    }

    /// Content beyond all bounds is not read, and is not lost for others, who come after that many
    /// milliseconds.
    void refuseContent(int pause)
    {
        const QByteArray bytes = random(70 * kMegabyte);
        QVERIFY(m_stage->copy(u"image/png"_s, bytes));
        QCOMPARE(types(), QStringList{u"image/png"_s});
        QCOMPARE(picture(), QByteArray());
        QTest::qWait(pause);
        QVERIFY(m_stage->paste(u"image/png"_s) == bytes);
    }

    void staysAsleep()
    {
        QVERIFY(m_stage->startRogue({u"hangHalfWay"_s, u"image/png"_s}));
        types();
        picture();
        m_stage->write(EncodedPicture{random(kMegabyte), u"image/png"_s});
        m_stage->paste(u"image/png"_s);
        QTest::qWait(500);
        const qint64 before = timesAsleep("pasteboard");
        QTest::qWait(2000);
        QVERIFY(before > 0 && timesAsleep("pasteboard") == before);
    }

    std::unique_ptr<Stage> m_stage;
    QStringList m_seen; ///< The types of the last rogue.
};
