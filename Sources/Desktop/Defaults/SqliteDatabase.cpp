#include "Desktop/Defaults/SqliteDatabase.h"

#include <QFile>

#include <sqlite3.h>
#include <sys/stat.h>

namespace Kestrune {

namespace {

/// SQLite's own file layer, except that it creates nothing: a reader of a foreign file must leave no
/// write-ahead log behind.
sqlite3_vfs *existingFilesOnly()
{
    const auto openExisting = [](sqlite3_vfs *, sqlite3_filename name, sqlite3_file *file, int flags,
                                 int *outFlags) {
        sqlite3_vfs *system = sqlite3_vfs_find(nullptr);
        return system->xOpen(system, name, file, name ? flags & ~SQLITE_OPEN_CREATE : flags, outFlags);
    };
    static sqlite3_vfs layer = [openExisting] {
        sqlite3_initialize();
        sqlite3_vfs copy = *sqlite3_vfs_find(nullptr);
        copy.pNext = nullptr;
        copy.zName = "existing-files-only";
        copy.xOpen = openExisting;
        return copy;
    }();
    static const int registered = sqlite3_vfs_register(&layer, 0);
    return registered == SQLITE_OK ? &layer : nullptr;
}

bool isRegularFile(const QByteArray &path)
{
    struct stat status
    {};
    return stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode);
}

[[noreturn]] void fail(int code, sqlite3 *database)
{
    throw SqliteError(code, database ? sqlite3_errmsg(database) : sqlite3_errstr(code));
}

} // namespace

SqliteError::SqliteError(int code, const std::string &message)
    : std::runtime_error(message)
    , m_code(code & 0xff)
{}

bool SqliteError::isDamage() const { return m_code == SQLITE_CORRUPT || m_code == SQLITE_NOTADB; }

void SqliteDatabase::Close::operator()(sqlite3 *handle) const { sqlite3_close(handle); }

SqliteDatabase::SqliteDatabase(const QString &path, Mode mode)
{
    const QByteArray file = QFile::encodeName(path);
    if (!isRegularFile(file)) // opening a FIFO would wait for its other end
        throw SqliteError(SQLITE_CANTOPEN, "no such file");
    QByteArray address = "file:" + file.toPercentEncoding("/");
    int flags = SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_READWRITE;
    const char *layer = nullptr;
    if (mode != Mode::ReadWrite) {
        flags = SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_READONLY;
        address += mode == Mode::Immutable ? "?immutable=1" : "?readonly_shm=1";
        layer = existingFilesOnly()->zName;
    }
    sqlite3 *handle = nullptr;
    const int code = sqlite3_open_v2(address.constData(), &handle, flags, layer);
    m_handle.reset(handle);
    if (code != SQLITE_OK)
        fail(code, handle);
    if (mode == Mode::ReadWrite)
        execute("PRAGMA secure_delete=ON");
}

void SqliteDatabase::setPatience(std::chrono::milliseconds patience)
{
    sqlite3_busy_timeout(handle(), static_cast<int>(patience.count()));
}

void SqliteDatabase::execute(const char *sql)
{
    if (const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr); code != SQLITE_OK)
        fail(code, handle());
}

bool SqliteDatabase::isReadOnly() const { return sqlite3_db_readonly(handle(), "main") == 1; }

void SqliteStatement::Finalize::operator()(sqlite3_stmt *handle) const { sqlite3_finalize(handle); }

SqliteStatement::SqliteStatement(SqliteDatabase &database, const char *sql)
{
    sqlite3_stmt *handle = nullptr;
    const int code =
        sqlite3_prepare_v3(database.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &handle, nullptr);
    if (code != SQLITE_OK)
        fail(code, database.handle());
    m_handle.reset(handle);
}

SqliteRun::SqliteRun(SqliteStatement &statement, std::initializer_list<SqliteValue> arguments)
    : m_statement(statement.m_handle.get())
{
    int index = 0;
    for (const SqliteValue &argument : arguments)
        bind(++index, argument);
}

SqliteRun::~SqliteRun()
{
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

bool SqliteRun::next()
{
    const int code = sqlite3_step(m_statement);
    if (code != SQLITE_ROW && code != SQLITE_DONE)
        fail(code, sqlite3_db_handle(m_statement));
    return code == SQLITE_ROW;
}

SqliteValue SqliteRun::column(int index) const
{
    const auto bytes = [&](const void *data) {
        const int size = sqlite3_column_bytes(m_statement, index);
        return size > 0 ? QByteArray(static_cast<const char *>(data), size) : QByteArray();
    };
    switch (sqlite3_column_type(m_statement, index)) {
    case SQLITE_INTEGER:
        return qint64{sqlite3_column_int64(m_statement, index)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(m_statement, index);
    case SQLITE_TEXT:
        return SqliteText{bytes(sqlite3_column_text(m_statement, index))};
    case SQLITE_BLOB:
        return bytes(sqlite3_column_blob(m_statement, index));
    default:
        return std::monostate();
    }
}

void SqliteRun::bind(int index, const SqliteValue &value)
{
    // constData() of an empty array is never null, which SQLite would take for a null value.
    int code = SQLITE_OK;
    if (const auto *integer = std::get_if<qint64>(&value))
        code = sqlite3_bind_int64(m_statement, index, *integer);
    else if (const auto *real = std::get_if<double>(&value))
        code = sqlite3_bind_double(m_statement, index, *real);
    else if (const auto *text = std::get_if<SqliteText>(&value))
        code = sqlite3_bind_text64(m_statement, index, text->utf8.constData(), text->utf8.size(),
                                   SQLITE_TRANSIENT, SQLITE_UTF8);
    else if (const auto *bytes = std::get_if<QByteArray>(&value))
        code = sqlite3_bind_blob64(m_statement, index, bytes->constData(), bytes->size(), SQLITE_TRANSIENT);
    else
        code = sqlite3_bind_null(m_statement, index);
    if (code != SQLITE_OK)
        fail(code, sqlite3_db_handle(m_statement));
}

SqliteTransaction::SqliteTransaction(SqliteDatabase &database)
    : m_database(database)
{
    m_database.execute("BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction()
{
    if (!sqlite3_get_autocommit(m_database.handle()))
        sqlite3_exec(m_database.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteTransaction::commit() { m_database.execute("COMMIT"); }

} // namespace Kestrune
