#include "Desktop/Defaults/SqliteUserDefaults.h"
#include "Desktop/Defaults/DiskFaults.h"
#include "Desktop/Defaults/SqliteDatabase.h"
#include "Support/TestRegistry.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>

namespace {

using Access = SqliteUserDefaults::Access;

constexpr int killings = 100;

QString key() { return u"key"_s; }

std::unique_ptr<QProcess> startWriter(const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->start(QCoreApplication::applicationDirPath() + u"/DefaultsWriter"_s, arguments);
    return process;
}

/// A finished defaults file that holds `text` under the key.
QByteArray fileHolding(const QString &text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"other.sqlite"_s);
    SqliteUserDefaults(path).setObject(key(), text);
    return readFile(path);
}

SqliteValue queried(const QString &path, const char *sql)
{
    SqliteDatabase database(path, SqliteDatabase::Mode::ReadWrite);
    SqliteStatement statement(database, sql);
    SqliteRun run(statement);
    return run.next() ? run.column(0) : SqliteValue();
}

} // namespace

class SqliteUserDefaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"domain/defaults.sqlite"_s);
    }

    void roundTrip_data()
    {
        const auto add = columns<DefaultsValue>();
        const QString oddText = u"\ufeffa\0\U0001f600"_s + QChar(0xd800) + u"b"_s + QChar(0xdc00);
        add("false", false);
        add("true", true);
        add("smallest integer", std::numeric_limits<qint64>::min());
        add("integer beyond a double", qint64{9007199254740993});
        add("whole double", 28.0);
        add("fraction", 0.1);
        add("infinity", -std::numeric_limits<double>::infinity());
        add("not a number", std::numeric_limits<double>::quiet_NaN());
        add("empty string", QString());
        add("string with a null character", u"a\0b"_s);
        add("string no UTF-8 can hold", oddText);
        add("digits stay a string", u"0012"_s);
        add("empty list", QStringList());
        add("list", QStringList{u"a"_s, QString(), oddText});
        add("empty map", StringMap());
        add("map", StringMap{{QString(), u"x"_s}, {oddText, QString()}});
        add("empty data", QByteArray());
        add("data", QByteArray("\0\xff", 2));
        add("large data", QByteArray(3'000'000, 'x'));
    }

    void roundTrip()
    {
        const auto [value] = fetched<DefaultsValue>();
        const QString oddKey = u"k\0"_s + QChar(0xdfff);
        SqliteUserDefaults reader(m_path);
        QVERIFY(!reader.object(key()));
        SqliteUserDefaults writer(m_path);
        for (const QString &name : {key(), oddKey}) {
            writer.setObject(name, u"of another type before"_s);
            writer.setObject(name, value);
            const auto stored = reader.object(name);
            QVERIFY(stored);
            QCOMPARE(stored->index(), value.index());
            const auto *number = std::get_if<double>(&value);
            QVERIFY(number && std::isnan(*number) ? std::isnan(std::get<double>(*stored)) : *stored == value);
            writer.removeObject(name);
            QVERIFY(!reader.object(name));
        }
    }

    void malformedRowIsAbsent_data()
    {
        QTest::addColumn<QByteArray>("typeAndValue");
        for (const char *row :
             {"'colour', 'red'", "x'00', 1", "'bool', 2", "'bool', 'true'", "'integer', 1.5",
              "'integer', NULL", "'double', 'much'", "'string', 5", "'string', x'00'",
              "'string', CAST(x'ff' AS TEXT)", "'list', 'a'", "'list', x'fffffff0'",
              "'list', x'000000030041'", "'map', x'000000020041'", "'data', 'text'"})
            QTest::newRow(row) << QByteArray(row);
    }

    void malformedRowIsAbsent()
    {
        QFETCH(const QByteArray, typeAndValue);
        SqliteUserDefaults defaults(m_path);
        defaults.setObject(u"other"_s, true);
        SqliteDatabase(m_path, SqliteDatabase::Mode::ReadWrite)
            .execute("INSERT INTO defaults VALUES('key', " + typeAndValue + ')');
        QVERIFY(!defaults.object(key()));
        QCOMPARE(defaults.value<bool>(u"other"_s), true);
        defaults.setObject(key(), qint64{1});
        QCOMPARE(defaults.value<qint64>(key()), 1);
    }

    void filesArePrivate()
    {
        const mode_t before = umask(0);
        SqliteUserDefaults(m_path).setObject(key(), true);
        // As a restored backup may be.
        QVERIFY(QFile(m_path).setPermissions(QFile::Permissions::fromInt(0x6644)));
        SqliteUserDefaults defaults(m_path);
        defaults.setObject(key(), false);
        umask(before);
        const auto mode = [](const QString &path) {
            struct stat status
            {};
            return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 0777 : 0u;
        };
        for (const char *suffix : {"", "-wal", "-shm"})
            QCOMPARE(mode(m_path + QLatin1String(suffix)), 0600u);
        QCOMPARE(mode(QFileInfo(m_path).path()), 0700u);
    }

    void logIsEmptiedSoon()
    {
        SqliteUserDefaults defaults(m_path);
        for (qint64 round = 0; round < 2; ++round) {
            defaults.setObject(key(), round);
            QVERIFY(QFileInfo(m_path + u"-wal"_s).size() > 0);
            QTRY_COMPARE(QFileInfo(m_path + u"-wal"_s).size(), 0);
        }
        defaults.setObject(key(), qint64{1}); // the same again is no write
        QCOMPARE(QFileInfo(m_path + u"-wal"_s).size(), 0);
    }

    void sharedLogImpossible()
    {
        SqliteUserDefaults(m_path).setObject(key(), qint64{1});
        QVERIFY(QFile::link(u"nowhere"_s, m_path + u"-shm"_s)); // where a log needs its shared memory
        SqliteUserDefaults one(m_path);
        SqliteUserDefaults two(m_path);
        QCOMPARE(one.value<qint64>(key()), 1);
        one.setObject(key(), qint64{2});
        QCOMPARE(two.value<qint64>(key()), 2);
        QVERIFY(!QFile::exists(m_path + u"-wal"_s));
    }

    void damagedFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray whole = fileHolding(QString(20000, u'x'));
        QByteArray scribbled = whole;
        scribbled.replace(4096, 200, QByteArray(200, '\xee'));
        QTest::newRow("text") << QByteArray("openMode = click\n").repeated(100);
        QTest::newRow("a few bytes") << QByteArray("hello");
        QTest::newRow("cut off") << whole.left(4096 + 100);
        QTest::newRow("scribbled over") << scribbled;
        QTest::newRow("header only") << whole.left(100) + QByteArray(5000, '\0');
    }

    void damagedFile()
    {
        QFETCH(const QByteArray, content);
        QVERIFY(writeFile(m_path, content));
        SqliteUserDefaults defaults(m_path);
        defaults.setObject(u"new"_s, true);
        QCOMPARE(SqliteUserDefaults(m_path).value<bool>(u"new"_s), true);
        QCOMPARE(damaged().size(), 1);
        QCOMPARE(readFile(QFileInfo(m_path).path() + u'/' + damaged().constFirst()), content);
    }

    void damageWhileRunning()
    {
        SqliteUserDefaults defaults(m_path);
        defaults.setObject(key(), QString(50000, u'x'));
        QTRY_COMPARE(QFileInfo(m_path + u"-wal"_s).size(), 0);
        for (int round = 1; round <= 2; ++round) {
            QVERIFY(writeFile(m_path, QByteArray(20000, 'z')));
            QVERIFY(!defaults.object(key()));
            defaults.setObject(u"new"_s, qint64{round});
            QCOMPARE(SqliteUserDefaults(m_path).value<qint64>(u"new"_s), round);
            QCOMPARE(damaged().size(), round);
            QTRY_COMPARE(QFileInfo(m_path + u"-wal"_s).size(), 0);
        }
    }

    void damagedCopiesEnd()
    {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const auto name = [&](int days) {
            return u"defaults.sqlite.damaged-"_s + now.addDays(-days).toString(u"yyyyMMdd-HHmmss"_s);
        };
        const QStringList old{name(31), name(31) + u"-wal"_s, name(400) + u"-2"_s};
        const QStringList young{name(29), name(29) + u"-2-wal"_s};
        const QStringList others{u"other."_s + name(31), u"defaults.sqlite.damaged-by-me"_s};
        SqliteUserDefaults defaults(m_path);
        const QDir folder(QFileInfo(m_path).path());
        QVERIFY(folder.mkpath(u"."_s));
        for (const QString &file : old + young + others)
            QVERIFY(writeFile(folder.filePath(file), "damaged"));
        const auto left = [&] {
            QStringList files = folder.entryList({u"*damaged*"_s}, QDir::Files);
            return QSet<QString>(files.cbegin(), files.cend());
        };
        defaults.setObject(key(), true);
        QCOMPARE(left(),
                 QSet<QString>(young.cbegin(), young.cend()) + QSet<QString>(others.cbegin(), others.cend()));
        SqliteUserDefaults(m_path, Access::ReadOnly).removeDamagedCopies();
        QCOMPARE(left().size(), 4);
        defaults.removeDamagedCopies();
        QCOMPARE(left(), QSet<QString>(others.cbegin(), others.cend()));
    }

    void manyFindDamageAndWrite()
    {
        QVERIFY(writeFile(m_path, QByteArray(9000, 'z')));
        std::vector<std::unique_ptr<QProcess>> writers;
        writers.reserve(6);
        for (int i = 0; i < 6; ++i)
            writers.push_back(startWriter({u"fill"_s, m_path, QString::number(i), u"200"_s}));
        QByteArray errors;
        for (const auto &writer : writers) {
            QVERIFY(writer->waitForFinished());
            errors += writer->readAllStandardError();
        }
        QVERIFY2(errors.count('\n') == 1 && errors.contains("set aside as " + m_path.toUtf8()), errors);
        QCOMPARE(damaged().size(), 1);
        QCOMPARE(queried(m_path, "SELECT count(*) FROM defaults"), SqliteValue(qint64{1200}));
    }

    void unwritable_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("below a file") << u"file/defaults.sqlite"_s;
        QTest::newRow("a folder itself") << u"folder"_s;
        QTest::newRow("read-only") << u"frozen/defaults.sqlite"_s;
        QTest::newRow("where no folder can be made") << u"/proc/kestrune/defaults.sqlite"_s;
    }

    void unwritable()
    {
        QFETCH(const QString, name);
        const QDir folder(m_folder->path());
        const QString path = folder.absoluteFilePath(name);
        QVERIFY(writeFile(folder.filePath(u"file"_s), "x"));
        QVERIFY(folder.mkdir(u"folder"_s));
        SqliteUserDefaults(folder.filePath(u"frozen/defaults.sqlite"_s)).setObject(u"before"_s, true);
        auto file = std::make_unique<Freeze>(folder.filePath(u"frozen/defaults.sqlite"_s));
        auto parent = std::make_unique<Freeze>(folder.filePath(u"frozen"_s));
        if (name.startsWith(u"frozen"_s) && !parent->isFrozen)
            QSKIP("this file system knows no immutable files");

        const auto writer = startWriter({u"fill"_s, path, u"a"_s, u"3"_s});
        QVERIFY(writer->waitForFinished());
        const QByteArray errors = writer->readAllStandardError();
        QVERIFY2(errors.count('\n') == 1 && errors.contains("kept in memory"), errors);

        SqliteUserDefaults defaults(path);
        QCOMPARE(defaults.value<bool>(u"before"_s).has_value(), name.startsWith(u"frozen"_s));
        defaults.setObject(key(), qint64{7});
        defaults.removeObject(u"before"_s);
        QCOMPARE(defaults.value<qint64>(key()), 7);
        QVERIFY(!defaults.object(u"before"_s));
        if (name.startsWith(u'/'))
            return;

        parent.reset();
        file.reset();
        QVERIFY(QFile::remove(folder.filePath(u"file"_s)) && folder.rmdir(u"folder"_s));
        defaults.setObject(u"later"_s, true);
        const SqliteUserDefaults other(path);
        QCOMPARE(other.value<qint64>(key()), 7);
        QCOMPARE(other.value<bool>(u"later"_s), true);
        QVERIFY(!other.object(u"before"_s));
    }

    void diskFull_data()
    {
        columns<bool, QString>();
        QTest::newRow("while running") << true << u"write"_s;
        QTest::newRow("until the program ends") << true << u"quit"_s;
        QTest::newRow("from the start") << false << u"write"_s;
        QTest::newRow("from the start, for a while") << false << u"wait"_s;
    }

    void diskFull()
    {
        const auto [isOpenBefore, then] = fetched<bool, QString>();
        const QString note(30000, u'n');
        SqliteUserDefaults other(m_path);
        auto defaults = std::make_unique<SqliteUserDefaults>(m_path);
        if (isOpenBefore)
            defaults->setObject(u"stored"_s, true);
        {
            const FileSizeLimit full(2000);
            defaults->setObject(key(), note);
            defaults->removeObject(u"stored"_s);
            QCOMPARE(defaults->value<QString>(key()), note);
            QVERIFY(!defaults->object(u"stored"_s));
            QVERIFY(!isOpenBefore || other.object(u"stored"_s));
        }
        if (then == u"write"_s)
            defaults->setObject(u"later"_s, true);
        else if (then == u"quit"_s)
            defaults.reset();
        else
            QTRY_VERIFY(other.object(key()));
        QCOMPARE(other.value<QString>(key()), note);
        QVERIFY(!other.object(u"stored"_s));
        QCOMPARE(queried(m_path, "PRAGMA integrity_check"), SqliteValue(SqliteText{"ok"}));
    }

    void lockedByAnother()
    {
        SqliteUserDefaults defaults(m_path);
        defaults.setObject(key(), qint64{1});
        SqliteDatabase other(m_path, SqliteDatabase::Mode::ReadWrite);
        {
            const SqliteTransaction lock(other);
            QElapsedTimer timer;
            timer.start();
            for (qint64 number = 2; number < 30; ++number)
                defaults.setObject(key(), number);
            QVERIFY2(timer.elapsed() < 2000, "only the first write may wait");
            QCOMPARE(defaults.value<qint64>(key()), 29);
            QCOMPARE(SqliteUserDefaults(m_path).value<qint64>(key()), 1);
        }
        defaults.setObject(u"later"_s, true);
        QCOMPARE(SqliteUserDefaults(m_path).value<qint64>(key()), 29);
    }

    void fileExchanged_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how :
             {"moved over", "copied over", "deleted", "deleted with companions", "folder deleted"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void fileExchanged()
    {
        QFETCH(const QString, how);
        const bool isRestored = how.endsWith(u"over"_s);
        const QByteArray backup = fileHolding(u"restored"_s);
        SqliteUserDefaults defaults(m_path);
        SqliteUserDefaults other(m_path);
        defaults.setObject(u"old"_s, QString(50000, u'x'));
        defaults.setObject(key(), u"present"_s);
        QVERIFY(other.object(key()));
        if (how == u"moved over"_s) {
            QVERIFY(writeFile(m_path + u".new"_s, backup));
            QCOMPARE(rename(QFile::encodeName(m_path + u".new"_s), QFile::encodeName(m_path)), 0);
        } else if (how == u"copied over"_s) {
            QTRY_COMPARE(QFileInfo(m_path + u"-wal"_s).size(), 0);
            QVERIFY(writeFile(m_path, backup));
        } else if (how == u"folder deleted"_s) {
            QVERIFY(QDir(QFileInfo(m_path).path()).removeRecursively());
        } else {
            QVERIFY(QFile::remove(m_path));
            if (how.endsWith(u"companions"_s))
                QVERIFY(QFile::remove(m_path + u"-wal"_s) && QFile::remove(m_path + u"-shm"_s));
        }
        const QString expected = isRestored ? u"restored"_s : u"present"_s;
        QCOMPARE(defaults.value<QString>(key()), expected);
        defaults.setObject(u"later"_s, true);
        other.setObject(u"last"_s, true);
        for (const SqliteUserDefaults &each : {std::cref(defaults), std::cref(other)}) {
            QCOMPARE(each.value<QString>(key()), expected);
            QCOMPARE(each.object(u"old"_s).has_value(), !isRestored);
            QVERIFY(each.object(u"later"_s) && each.object(u"last"_s));
        }
        QCOMPARE(queried(m_path, "PRAGMA integrity_check"), SqliteValue(SqliteText{"ok"}));
        QVERIFY(damaged().isEmpty());
    }

    void readOnlyFollowsTheFile()
    {
        const QDir folder(QFileInfo(m_path).path());
        SqliteUserDefaults foreign(m_path, Access::ReadOnly);
        foreign.setObject(key(), true);
        QVERIFY(!foreign.object(key()));
        QVERIFY(!folder.exists());
        {
            SqliteUserDefaults owner(m_path);
            for (qint64 number = 0; number < 3; ++number) {
                owner.setObject(key(), number);
                QCOMPARE(foreign.value<qint64>(key()), number);
            }
        }
        const QStringList closed{u"defaults.sqlite"_s};
        QCOMPARE(foreign.value<qint64>(key()), 2);
        QCOMPARE(folder.entryList(QDir::Files), closed);
        for (const QByteArray &damage : {QByteArray(), QByteArray(9000, 'z')}) {
            QVERIFY(writeFile(m_path, damage));
            QVERIFY(!foreign.object(key()));
            QCOMPARE(folder.entryList(QDir::Files), closed);
        }
        QVERIFY(writeFile(m_path, fileHolding(u"new"_s)));
        QCOMPARE(foreign.value<QString>(key()), u"new"_s);
        QVERIFY(QFile::remove(m_path));
        QVERIFY(!foreign.object(key()));
        QVERIFY(folder.isEmpty());
    }

    void killed()
    {
        const SqliteUserDefaults foreign(m_path, Access::ReadOnly);
        qint64 written = 0;
        for (int round = 0; round < killings; ++round) {
            const auto writer = startWriter({u"count"_s, m_path});
            QVERIFY(writer->waitForReadyRead());
            QTest::qSleep(1 + QRandomGenerator::global()->bounded(30));
            writer->kill();
            QVERIFY(writer->waitForFinished());
            QCOMPARE(writer->readAllStandardError(), QByteArray());
            const QList<QByteArray> reports = writer->readAllStandardOutput().split('\n');
            const qint64 reported = reports.at(reports.size() - 2).toLongLong();
            QVERIFY(reported > written);

            const QStringList files = QFileInfo(m_path).dir().entryList();
            const auto counter = [&](const SqliteUserDefaults &defaults, qint64 number) {
                return defaults.value<qint64>(u"counter.%1"_s.arg(number % 4)).value_or(0);
            };
            const auto isIntact = [&](const SqliteUserDefaults &defaults) {
                const qint64 next = counter(defaults, reported + 1); // may be written but not yet reported
                bool intact = next == reported + 1 || next == std::max<qint64>(0, reported - 3);
                for (qint64 number = std::max<qint64>(1, reported - 2); number <= reported; ++number)
                    intact = intact && counter(defaults, number) == number;
                return intact;
            };
            QVERIFY(isIntact(foreign));
            QCOMPARE(QFileInfo(m_path).dir().entryList(), files);
            QVERIFY(isIntact(SqliteUserDefaults(m_path)));
            QCOMPARE(queried(m_path, "PRAGMA integrity_check"), SqliteValue(SqliteText{"ok"}));
            written = reported;
        }
        QVERIFY(damaged().isEmpty());
    }

private:
    /// The names of the files set aside, without those that went along.
    QStringList damaged() const
    {
        return QFileInfo(m_path).dir().entryList({u"*.damaged-*[0-9]"_s}, QDir::Files);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

REGISTER_TEST(SqliteUserDefaultsTest);

#include "SqliteUserDefaultsTest.moc"
