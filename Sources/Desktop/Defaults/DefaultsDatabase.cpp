#include "Desktop/Defaults/DefaultsDatabase.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

namespace Kestrune {

using std::chrono::milliseconds;

namespace {

constexpr std::array logSuffixes{"-wal", "-shm"};
constexpr auto selectRow = "SELECT type, value FROM defaults WHERE key = ?1";

QString createdFile(const QString &path)
{
    const QFileInfo link(path);
    const QString file = link.isSymLink() ? link.symLinkTarget() : path; // which may have to be created
    makePrivateFile(file);
    const QString canonical = QFileInfo(file).canonicalFilePath(); // where SQLite puts the companions
    return canonical.isEmpty() ? file : canonical;
}

SqliteDatabase connectForWriting(const QString &path, milliseconds patience)
{
    SqliteDatabase database(path, SqliteDatabase::Mode::ReadWrite);
    if (database.isReadOnly())
        throw SqliteError(SQLITE_READONLY, "the file is read-only");
    database.setPatience(patience);
    return database;
}

SqliteValue firstValue(SqliteDatabase &database, const char *sql)
{
    SqliteStatement statement(database, sql);
    SqliteRun run(statement);
    return run.next() ? run.column(0) : SqliteValue();
}

void checkThrough(SqliteDatabase &database)
{
    if (firstValue(database, "PRAGMA quick_check(1)") != SqliteValue(SqliteText{"ok"}))
        throw SqliteError(SQLITE_CORRUPT, "the content contradicts itself");
}

bool switchToLog(SqliteDatabase &database)
{
    checkThrough(database);
    const bool switched = firstValue(database, "PRAGMA journal_mode=WAL") == SqliteValue(SqliteText{"wal"});
    database.execute("SELECT count(*) FROM sqlite_schema"); // fails where the log cannot be shared
    return switched;
}

// The exclusive lock lets a file be converted whose log can no longer be shared.
void switchToRollbackJournal(SqliteDatabase &database)
{
    database.execute("PRAGMA locking_mode=EXCLUSIVE");
    checkThrough(database);
    database.execute("PRAGMA journal_mode=TRUNCATE; PRAGMA locking_mode=NORMAL;"
                     "SELECT count(*) FROM sqlite_schema; PRAGMA synchronous=FULL");
}

SqliteDatabase connectWithBestJournal(const QString &path, milliseconds patience)
{
    if (!isOnNetwork(path)) {
        try {
            SqliteDatabase database = connectForWriting(path, patience);
            if (switchToLog(database))
                return database;
        } catch (const SqliteError &error) {
            if (error.isDamage() || error.code() == SQLITE_BUSY || error.code() == SQLITE_READONLY)
                throw;
        }
    }
    SqliteDatabase database = connectForWriting(path, patience);
    switchToRollbackJournal(database);
    return database;
}

std::optional<StoredValue> selected(SqliteStatement &select, const QString &key)
{
    SqliteRun run(select, {encodeString(key)});
    return run.next() ? std::optional(StoredValue{run.column(0), run.column(1)}) : std::nullopt;
}

} // namespace

DefaultsDatabase::DefaultsDatabase(const QString &path, milliseconds patience)
    : m_path(createdFile(path))
    , m_database(connectWithBestJournal(m_path, patience))
{
    createTable();
    prepare();
    m_identity = fileIdentity(m_path).value_or(FileIdentity{});
    for (std::size_t i = 0; i < m_log.size(); ++i)
        m_log[i] = fileIdentity(m_path + QLatin1String(logSuffixes[i]));
    m_hasLog = firstValue(m_database, "PRAGMA journal_mode") == SqliteValue(SqliteText{"wal"});
    if (!m_hasLog)
        return;
    // Replaces SQLite's automatic checkpoints, whose syncs would block the caller of a write.
    const auto committed = [](void *self, sqlite3 *, const char *, int pages) {
        static_cast<DefaultsDatabase *>(self)->m_logPages = pages;
        return SQLITE_OK;
    };
    sqlite3_wal_hook(m_database.handle(), committed, this);
    // A log only needs a sync by its writer where it starts over above older frames. Here checkpoints do
    // all syncing and truncate the log, so that it always starts over empty: not even the first write
    // after one has to wait for the disk.
    m_database.execute("PRAGMA synchronous=OFF");
}

DefaultsDatabase::~DefaultsDatabase()
{
    // Closing may checkpoint, which must sync.
    sqlite3_exec(m_database.handle(), "PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
}

void DefaultsDatabase::createTable()
{
    // Columns without a type keep each value as it was bound.
    m_database.execute("CREATE TABLE IF NOT EXISTS defaults"
                       "(key NOT NULL PRIMARY KEY, type NOT NULL, value) WITHOUT ROWID");
}

void DefaultsDatabase::prepare()
{
    try {
        m_select.emplace(m_database, selectRow);
        m_insert.emplace(m_database, "INSERT INTO defaults(key, type, value) VALUES(?1, ?2, ?3) "
                                     "ON CONFLICT(key) DO UPDATE SET type = ?2, value = ?3");
        m_delete.emplace(m_database, "DELETE FROM defaults WHERE key = ?1");
    } catch (const SqliteError &error) {
        if (error.code() != SQLITE_ERROR)
            throw;
        throw SqliteError(SQLITE_CORRUPT, error.what()); // a table of that name, but not of this store
    }
}

std::optional<StoredValue> DefaultsDatabase::read(const QString &key) { return selected(*m_select, key); }

bool DefaultsDatabase::apply(Changes changes)
{
    std::erase_if(changes, [this](const auto &change) { return read(change.first) == change.second; });
    if (changes.empty())
        return false;
    if (changes.size() == 1) { // a statement is a transaction too, and a quicker one
        applyOne(changes.begin()->first, changes.begin()->second);
        return true;
    }
    SqliteTransaction transaction(m_database);
    for (const auto &[key, change] : changes)
        applyOne(key, change);
    transaction.commit();
    return true;
}

void DefaultsDatabase::applyOne(const QString &key, const std::optional<StoredValue> &change)
{
    if (change)
        SqliteRun(*m_insert, {encodeString(key), change->type, change->content}).next();
    else
        SqliteRun(*m_delete, {encodeString(key)}).next();
}

Changes DefaultsDatabase::contents()
{
    Changes all;
    try {
        SqliteStatement statement(m_database, "SELECT key, type, value FROM defaults");
        SqliteRun run(statement);
        while (run.next()) {
            if (const auto key = decodeString(run.column(0)))
                all[*key] = StoredValue{run.column(1), run.column(2)};
        }
    } catch (const SqliteError &) {
        return all;
    }
    return all;
}

void DefaultsDatabase::forgetPages() { sqlite3_db_release_memory(m_database.handle()); }

void DefaultsDatabase::checkpoint()
{
    m_database.execute("PRAGMA synchronous=NORMAL");
    Kestrune::checkpoint(m_database);
}

void DefaultsDatabase::removeLog()
{
    for (std::size_t i = 0; i < m_log.size(); ++i) {
        const QString companion = m_path + QLatin1String(logSuffixes[i]);
        if (m_log[i] && fileIdentity(companion) == m_log[i])
            QFile::remove(companion);
    }
}

void DefaultsDatabase::abandon()
{
    sqlite3_db_config(m_database.handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

void checkpoint(SqliteDatabase &database)
{
    const int code =
        sqlite3_wal_checkpoint_v2(database.handle(), "main", SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    if (code != SQLITE_OK)
        throw SqliteError(code, sqlite3_errmsg(database.handle()));
}

std::optional<StoredValue> readExisting(const QString &path, const QString &key)
{
    using Mode = SqliteDatabase::Mode;
    for (const Mode mode : {Mode::ReadOnly, Mode::Immutable}) {
        try {
            SqliteDatabase database(path, mode);
            database.setPatience(milliseconds(100));
            SqliteStatement select(database, selectRow);
            return selected(select, key);
        } catch (const SqliteError &error) {
            if (error.code() != SQLITE_CANTOPEN)
                break;
        }
    }
    return std::nullopt;
}

} // namespace Kestrune
