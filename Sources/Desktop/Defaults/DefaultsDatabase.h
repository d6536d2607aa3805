#pragma once

#include "Desktop/Defaults/DefaultsFile.h"
#include "Desktop/Defaults/SqliteDatabase.h"
#include "Desktop/Defaults/StoredValue.h"

#include <array>
#include <chrono>
#include <optional>

namespace Kestrune {

/// One open defaults file with its table. Failures throw SqliteError; of those at opening, isDamage() says
/// that the file holds no usable defaults.
class DefaultsDatabase
{
public:
    /// Opens the file and checks it through; creates it, but not its folder, when it is missing. Also
    /// throws std::system_error. Two openings at once need a FolderLock between them.
    DefaultsDatabase(const QString &path, std::chrono::milliseconds patience);

    /// The last of all processes to close the file writes the log back into it.
    ~DefaultsDatabase();
    DefaultsDatabase(const DefaultsDatabase &) = delete;
    DefaultsDatabase &operator=(const DefaultsDatabase &) = delete;

    FileIdentity identity() const { return m_identity; }

    std::optional<StoredValue> read(const QString &key);

    /// Carries out, in one transaction, those of `changes` that change anything; false if none does.
    bool apply(Changes changes);

    /// Every row that can be read.
    Changes contents();

    void setPatience(std::chrono::milliseconds patience) { m_database.setPatience(patience); }

    /// Forgets what was read, for when the file was overwritten in place behind SQLite's back.
    void forgetPages();

    /// Whether writes go to a log that a checkpoint brings back into the file.
    bool hasLog() const { return m_hasLog; }

    /// Whether the log has grown past 16 megabytes.
    bool isLogLong() const { return m_logPages >= 4000; }

    /// Brings the log into the file and makes both durable.
    void checkpoint();

    /// Removes the log from beside a file that has meanwhile taken this one's place: replayed there, it
    /// would ruin that file.
    void removeLog();

    /// Closing will leave file and log as they are.
    void abandon();

private:
    void createTable();
    void prepare();
    void applyOne(const QString &key, const std::optional<StoredValue> &change);

    QString m_path;
    SqliteDatabase m_database;
    std::optional<SqliteStatement> m_select;
    std::optional<SqliteStatement> m_insert;
    std::optional<SqliteStatement> m_delete;
    FileIdentity m_identity{};
    std::array<std::optional<FileIdentity>, 2> m_log;
    bool m_hasLog = false;
    int m_logPages = 0;
};

/// Empties the log of `database` into its file, both synced. Throws when other connections are in the way.
void checkpoint(SqliteDatabase &database);

/// The row of `key` in a file that may belong to another program; nothing on any failure. Creates and
/// keeps nothing, so that each call sees the file that is there now.
std::optional<StoredValue> readExisting(const QString &path, const QString &key);

} // namespace Kestrune
