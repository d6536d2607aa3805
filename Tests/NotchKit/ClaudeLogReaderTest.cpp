#include "NotchKit/Tools/AIUsage/ClaudeLogReader.h"
#include "NotchKit/IsoTimestamp.h"
#include "Support/TestRegistry.h"

#include <random>
#include <thread>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

static QDateTime at(const char *time)
{
    return QDateTime::fromString(QLatin1String(time), Qt::ISODateWithMs);
}

static QByteArray entryLine(const QByteArray &time, qint64 tokens, const QByteArray &id)
{
    return "{\"timestamp\":\"" + time + "\",\"requestId\":\"r\",\"message\":{\"id\":\"" + id +
           "\",\"usage\":{\"input_tokens\":" + QByteArray::number(tokens) +
           ",\"cache_read_input_tokens\":1000}}}\n";
}

static void write(const QString &path, const QByteArray &text, QIODevice::OpenMode mode = QIODevice::Append)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | mode));
    QCOMPARE(file.write(text), text.size());
}

static void useZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    tzset();
}

class ClaudeLogReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanupTestCase() { useZone("UTC"); }
    void timestamps_data()
    {
        const auto row = columns<std::optional<qint64>>();
        row("1970-01-01T00:00:00.000Z", 0);
        row("1969-12-31T23:59:59.5Z", -500);
        row("2024-02-29T12:00:00.123456789+05:45", 1709187300123);
        row("2026-11-21T00:00:00.000-11:30", 1795260600000);
        for (const char *bad :
             {"2026-11-21T00:00:00Z", "2026-11-21T00:00:00.Z", "2026-11-21T00:00:00.0",
              "2026-11-21 00:00:00.0Z", "2026-11-21T00:00:00.0+0100", "2026-11-21T00:00:00.0Z ",
              "2025-02-29T00:00:00.0Z", "", "2026-11", "2026-00-21T00:00:00.0Z", "2026-11-21T24:00:00.0Z",
              "2026-11-21T00:60:00.0Z", "+026-11-21T00:00:00.0Z"})
            row(bad, std::nullopt);
    }

    void timestamps()
    {
        const auto [milliseconds] = fetched<std::optional<qint64>>();
        QVERIFY(parseIsoTimestamp(QTest::currentDataTag()) == milliseconds);
    }

    void figures_data()
    {
        // entries: time=tokens
        columns<QByteArray, QDateTime, QString, ClaudeUsage>();
        const auto row = [](const char *name, const char *zone, const char *now, const char *entries,
                            const ClaudeUsage &expected) {
            QTest::newRow(name) << QByteArray(zone) << at(now) << QString::fromLatin1(entries) << expected;
        };
        row("two blocks", "UTC", "2026-03-10T15:00:00Z",
            "2026-03-10T14:01:00.000Z=4 2026-03-10T09:00:00.000Z=1 2026-03-10T13:59:00.000Z=2",
            {4, at("2026-03-10T14:01:00Z"), 7, 3, at("2026-03-10T14:01:00Z"), 4, {0, 0, 0, 0, 0, 0, 7}});
        row("a block ends after five hours", "UTC", "2026-03-10T14:30:00Z",
            "2026-03-10T09:10:00.000Z=5 2026-03-10T09:30:00.000Z=5",
            {0, {}, 10, 2, at("2026-03-10T09:30:00Z"), 10, {0, 0, 0, 0, 0, 0, 10}});
        row("exactly five hours later begins another", "UTC", "2026-03-10T14:00:00Z",
            "2026-03-10T09:00:00.000Z=5 2026-03-10T14:00:00.000Z=3",
            {3, at("2026-03-10T14:00:00Z"), 8, 2, at("2026-03-10T14:00:00Z"), 5, {0, 0, 0, 0, 0, 0, 8}});
        row("a week old is too old", "UTC", "2026-03-10T12:00:00Z",
            "2026-03-03T12:00:00.000Z=1 2026-03-03T12:00:00.001Z=2 2026-03-04T00:00:00.000Z=4",
            {0, {}, 6, 2, at("2026-03-04T00:00:00Z"), 4, {4, 0, 0, 0, 0, 0, 0}});
        // The night of 29 March has no hour from 2 to 3; midnights are at 23:00Z, then at 22:00Z.
        row("a day of 23 hours", "Europe/Berlin", "2026-03-30T10:00:00Z",
            "2026-03-28T22:59:59.999Z=1 2026-03-28T23:00:00.000Z=2 2026-03-29T21:59:59.999Z=4 "
            "2026-03-29T22:00:00.000Z=8",
            {0, {}, 15, 4, at("2026-03-29T22:00:00Z"), 12, {0, 0, 0, 0, 1, 6, 8}});
        row("a day of 25 hours", "Europe/Berlin", "2026-10-26T10:00:00Z",
            "2026-10-24T21:59:59.999Z=1 2026-10-24T22:00:00.000Z=2 2026-10-25T22:59:59.999Z=4 "
            "2026-10-25T23:00:00.000Z=8",
            {0, {}, 15, 4, at("2026-10-25T23:00:00Z"), 12, {0, 0, 0, 0, 1, 6, 8}});
        row("a day that begins at one o'clock", "America/Havana", "2026-03-08T12:00:00Z",
            "2026-03-08T04:59:59.999Z=1 2026-03-08T05:00:00.000Z=2",
            {0, {}, 3, 2, at("2026-03-08T05:00:00Z"), 3, {0, 0, 0, 0, 0, 1, 2}});
        row("a clock that was wrong", "UTC", "2026-03-10T12:00:00Z", "2026-03-11T12:00:00.000Z=9",
            {9, at("2026-03-11T12:00:00Z"), 9, 1, at("2026-03-11T12:00:00Z"), 9, {}});
    }

    void figures()
    {
        const auto [zone, now, entries, expected] = fetched<QByteArray, QDateTime, QString, ClaudeUsage>();
        useZone(zone);
        for (const QString &entry : entries.split(u' ')) {
            const QByteArray time = entry.section(u'=', 0, 0).toLatin1();
            write(path(), entryLine(time, entry.section(u'=', 1).toLongLong(), time));
        }
        ClaudeLogReader reader({m_folder->path()});
        const auto usage = reader.summary(now);
        QVERIFY(usage == expected && !reader.summary(now.addDays(9)));
        QVERIFY(!ClaudeLogReader(QStringList(path("missing"))).summary(now));
    }

    void severalFoldersCountOnceEach()
    {
        const QTemporaryDir other;
        write(path(), entryLine(m_time, 20, "b").replace("\"id\"", "\"no\""));
        write(other.filePath(u"x.jsonl"_s), entryLine(m_time, 3, "c"));
        QVERIFY(QFile::link(m_folder->path(), other.filePath(u"link"_s)));
        ClaudeLogReader reader({m_folder->path(), other.filePath(u"link"_s), other.path(), u"/nowhere"_s});
        QCOMPARE(reader.summary(m_now).value_or(ClaudeUsage{}).weekTokens, 23);
    }

    void countsALineOnceItIsComplete()
    {
        const QByteArray second = entryLine(m_time, 20, "b");
        ClaudeLogReader reader({m_folder->path()});
        const auto tokens = [&] { return reader.summary(m_now).value_or(ClaudeUsage{}).weekTokens; };
        write(path(), entryLine(m_time, 1, "a") + entryLine(m_time, 2, "a") + second.left(90));
        QCOMPARE(tokens(), 2);
        write(path(), second.mid(90).chopped(1));
        QCOMPARE(tokens(), 2);
        write(path(), "\n");
        QCOMPARE(tokens(), 22);
        write(path(), entryLine(m_time, 400, "c"), QIODevice::Truncate); // shorter than what was read
        QCOMPARE(tokens(), 400);
        write(path("new"),
              entryLine(m_time, 3, "a") + entryLine(m_time, 4000, "d") + entryLine(m_time, 400, "c"));
        QCOMPARE(std::rename(qPrintable(path("new")), qPrintable(path())), 0);
        QCOMPARE(tokens(), 4403);
        QVERIFY(QFile::remove(path()));
        QCOMPARE(tokens(), 0);
    }

    /// Whatever happens to logs, at a look, between two and over restarts: the figures are those of a reader
    /// that sees them for the first time, and the file of what was read may be damaged.
    void remembersWhatItRead()
    {
        std::mt19937 random(11);
        const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
        const QString memory = path("memory/usage");
        auto reader = std::make_unique<ClaudeLogReader>(QStringList(m_folder->path()), memory);
        QDateTime now = m_now;
        for (int step = 0; step < 1200; ++step) {
            const QString log = path(QByteArray(1, static_cast<char>('a' + below(5))) + ".jsonl");
            const QByteArray time = now.addSecs(-below(8 * 86'400)).toString(Qt::ISODateWithMs).toLatin1();
            QByteArray lines;
            for (int count = below(30); count >= 0; --count)
                lines += entryLine(time, below(1000), QByteArray::number(below(300)));
            const qint64 size = QFileInfo(log).size();
            const int event = below(9);
            if (event == 0)
                QFile::remove(log);
            else if (event == 1 && size > 0)
                QFile::resize(log,
                              below(static_cast<unsigned>(size))); // and perhaps appended to before the look
            else if (event == 2)                                   // rewritten in place, as long as before
                write(log, (lines + QByteArray::number(step).repeated(size)).left(size),
                      QIODevice::ReadWrite);
            else if (event == 3)
                write(log, lines.chopped(below(60)));
            else
                write(log, lines);
            // Each change has a time of its own, as changes by hand have.
            if (QFile file(log); file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
                file.setFileTime(m_now.addMSecs(step), QFileDevice::FileModificationTime);
            if (below(4) != 0)
                continue;
            now = now.addSecs(below(7200));
            const auto fresh = ClaudeLogReader(QStringList(m_folder->path())).summary(now);
            QVERIFY2(reader->summary(now) == fresh, qPrintable(QString::number(step)));
            reader->remember(0);
            if (below(3) == 0)
                reader = std::make_unique<ClaudeLogReader>(QStringList(m_folder->path()), memory);
            if (below(20) == 0)
                spoil(memory, below(1'000'000));
        }
        QCOMPARE(QFile::permissions(memory) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    }

    void aRestartReadsOnlyWhatIsNew()
    {
        const QString memory = path("memory/usage");
        for (int file = 0; file < 8; ++file)
            write(path(QByteArray::number(file) + ".jsonl"),
                  QByteArray(2 << 20, '\n') + entryLine(m_time, 1, QByteArray::number(file)));
        const auto reader = [&] {
            return std::make_unique<ClaudeLogReader>(QStringList(m_folder->path()), memory);
        };
        const auto first = reader();
        QCOMPARE(first->summary(m_now)->weekTokens, 8);
        QVERIFY(first->remember() && !first->remember()); // once, as nothing was read since
        write(path("0.jsonl"), entryLine(m_time, 100, "x"));
        const auto second = reader();
        const qint64 before = processFigure("io", "rchar:");
        QCOMPARE(second->summary(m_now)->weekTokens, 108);
        QVERIFY(processFigure("io", "rchar:") - before < 100'000);
        QVERIFY(!second->remember()); // not for so little
        // A clock that was a year ahead has dropped everything: set right, all is read again.
        QVERIFY(!second->summary(m_now.addDays(365)));
        QVERIFY(second->remember(0));
        QCOMPARE(reader()->summary(m_now)->weekTokens, 108);
        QVERIFY(second->forget() && !QFile::exists(memory));
        QCOMPARE(second->summary(m_now)->weekTokens, 108);
    }

    void hugeNumbersStayNumbers()
    {
        QByteArray text;
        for (const QByteArray &number :
             {QByteArray("9223372036854775807"), QByteArray("18446744073709551615"), QByteArray("1e300"),
              QByteArray("1e18")})
            text += entryLine(m_time, 0, number).replace(":0,", ':' + number + ',');
        write(path(), text);
        ClaudeLogReader reader({m_folder->path()});
        QCOMPARE(reader.summary(m_now)->weekTokens, std::numeric_limits<qint64>::max());
        QCOMPARE(reader.summary(m_now)->weekMessages, 4);
    }

    void threadsDoNotDecide()
    {
        for (int file = 10; file < 40; ++file) {
            QByteArray text;
            for (int id = 0; id < 2000; ++id)
                text += entryLine(m_time, file, QByteArray::number(id)) + QByteArray(200, ' ') + '\n';
            write(path(QByteArray::number(file) + ".jsonl"), text);
        }
        for (int round = 0; round < 5; ++round) {
            ClaudeLogReader reader({m_folder->path()});
            QCOMPARE(reader.summary(m_now)->weekTokens, 2000 * 39);
        }
    }

    void oddFilesNeitherHangNorGrow()
    {
        write(path(), entryLine(m_time, 7, "a"));
        QCOMPARE(mkfifo(qPrintable(path("fifo.jsonl")), 0600), 0);
        const int server = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{AF_UNIX, {}};
        std::strcpy(address.sun_path, qPrintable(path("socket.jsonl")));
        QCOMPARE(bind(server, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
        for (const char *link : {"loop", "loop.jsonl"})
            QVERIFY(QFile::link(m_folder->path(), path(link)));
        QVERIFY(QFile::link(path("self.jsonl"), path("self.jsonl")));
        QVERIFY(QFile::link(u"/dev/zero"_s, path("zero.jsonl")));
        QVERIFY(QFile::link(path(), path("good.jsonl")));
        write(path("shut.jsonl"), "\"usage\"\n");
        QVERIFY(QFile::setPermissions(path("shut.jsonl"), {}));

        constexpr qint64 kHuge = 1 << 30;
        const QString huge = path("huge.jsonl");
        write(huge, "{\"usage\":\"");
        QVERIFY(QFile::resize(huge, kHuge));

        ClaudeLogReader reader({m_folder->path()});
        QVERIFY(writeFile(u"/proc/self/clear_refs"_s, "5")); // the peak is counted from here
        const qint64 before = processFigure("status", "VmRSS:");
        QCOMPARE(reader.summary(m_now)->weekTokens, 7);
        QCOMPARE_LT(processFigure("status", "VmHWM:") - before, 24 << 10);

        // What was scanned is not scanned again, whether or not the line grows, nor is it ever parsed.
        for (const char *more : {"", "x", "\n"}) {
            write(huge, more);
            const qint64 read = processFigure("io", "rchar:");
            QCOMPARE(reader.summary(m_now)->weekTokens, 7);
            QVERIFY(processFigure("io", "rchar:") - read < 100'000);
        }
        close(server);
    }

    void filesMayVanishWhileRead()
    {
        write(path("stays.jsonl"), entryLine(m_time, 7, "a"));
        std::jthread trouble([&](const std::stop_token &stop) {
            const QByteArray text = QByteArray(2'000'000, '"') + "\"usage\"\n";
            while (!stop.stop_requested()) {
                for (const char *name : {"m.jsonl", "z.jsonl"}) {
                    write(path(name), text);
                    QFile::resize(path(name), 1'000'000);
                    QFile::remove(path(name));
                }
            }
        });
        for (int round = 0; round < 200; ++round) {
            ClaudeLogReader reader({m_folder->path()});
            QCOMPARE(reader.summary(m_now)->weekTokens, 7);
        }
    }

    void cancelEndsIt()
    {
        write(path(), "");
        QVERIFY(QFile::resize(path(), qint64(1) << 42)); // hours to read
        ClaudeLogReader reader({m_folder->path()});
        std::jthread summary([&] { QVERIFY(!reader.summary(QDateTime::currentDateTimeUtc())); });
        QTest::qWait(50);
        reader.cancel();
        summary.join();
    }

private:
    /// Cuts or changes the file at that place.
    static void spoil(const QString &name, int place)
    {
        QFile file(name);
        QVERIFY(file.open(QIODevice::ReadWrite));
        const qint64 at = place % std::max<qint64>(1, file.size());
        if (place % 2) {
            QVERIFY(file.resize(at));
        } else {
            file.seek(at);
            file.putChar(static_cast<char>(place));
        }
    }

    QString path(const char *name = "log.jsonl") const { return m_folder->filePath(QLatin1String(name)); }

    const QDateTime m_now = QDateTime::currentDateTimeUtc();
    const QByteArray m_time = m_now.toString(Qt::ISODateWithMs).toLatin1();
    std::unique_ptr<QTemporaryDir> m_folder;
};

REGISTER_TEST(ClaudeLogReaderTest);
#include "ClaudeLogReaderTest.moc"
