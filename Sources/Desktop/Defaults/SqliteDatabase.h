#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>
#include <variant>

struct sqlite3;
struct sqlite3_stmt;

namespace Kestrune {

/// A failed SQLite call.
class SqliteError : public std::runtime_error
{
public:
    SqliteError(int code, const std::string &message);

    /// SQLite's primary result code, such as SQLITE_FULL.
    int code() const { return m_code; }

    /// The file is no database, or its content contradicts itself: trying again cannot help.
    bool isDamage() const;

private:
    int m_code;
};

/// Text of a column, in UTF-8; apart from bytes because SQLite keeps the two apart.
struct SqliteText
{
    QByteArray utf8;
    bool operator==(const SqliteText &) const = default;
};

/// One column: null, integer, real, text or bytes. A real that is not a number arrives as null.
using SqliteValue = std::variant<std::monostate, qint64, double, SqliteText, QByteArray>;

/// One connection to a database file, used by one thread at a time. Every failure throws SqliteError.
class SqliteDatabase
{
public:
    enum class Mode {
        /// Read only where the file cannot be written: see isReadOnly(). What is removed is overwritten.
        ReadWrite,
        ReadOnly, ///< Creates no file at all; CANTOPEN when the companions a live database needs are missing.
        Immutable, ///< As ReadOnly, for a file that has no companions because nobody has it open.
    };

    /// Opens the regular file at `path`, which is never created.
    SqliteDatabase(const QString &path, Mode mode);

    /// How long a call waits for other connections before it fails with SQLITE_BUSY.
    void setPatience(std::chrono::milliseconds patience);

    /// Runs one or more statements and ignores their rows.
    void execute(const char *sql);

    bool isReadOnly() const;

    sqlite3 *handle() const { return m_handle.get(); }

private:
    struct Close
    {
        void operator()(sqlite3 *handle) const;
    };
    std::unique_ptr<sqlite3, Close> m_handle;
};

/// A compiled statement, kept for many runs. It must not outlive its database.
class SqliteStatement
{
public:
    SqliteStatement(SqliteDatabase &database, const char *sql);

private:
    friend class SqliteRun;
    struct Finalize
    {
        void operator()(sqlite3_stmt *handle) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalize> m_handle;
};

/// One run of a statement. The end of its life ends the run, and with it the read lock the run held.
class SqliteRun
{
public:
    explicit SqliteRun(SqliteStatement &statement, std::initializer_list<SqliteValue> arguments = {});
    ~SqliteRun();
    SqliteRun(const SqliteRun &) = delete;
    SqliteRun &operator=(const SqliteRun &) = delete;

    /// Moves on to the next row; false after the last.
    bool next();

    /// A column of the present row, counted from 0.
    SqliteValue column(int index) const;

private:
    void bind(int index, const SqliteValue &value);

    sqlite3_stmt *m_statement;
};

/// A write transaction that is undone unless commit() was reached.
class SqliteTransaction
{
public:
    explicit SqliteTransaction(SqliteDatabase &database);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction &) = delete;
    SqliteTransaction &operator=(const SqliteTransaction &) = delete;

    void commit();

private:
    SqliteDatabase &m_database;
};

} // namespace Kestrune
