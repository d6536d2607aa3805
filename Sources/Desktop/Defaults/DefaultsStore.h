#pragma once

#include "Desktop/Defaults/Checkpointer.h"
#include "Desktop/Defaults/DefaultsDatabase.h"

#include <chrono>
#include <memory>
#include <type_traits>

namespace Kestrune {

/// The defaults file at a path, whatever becomes of it: created when missing, followed when another file
/// takes its place, set aside when it is damaged. Failures throw SqliteError or std::system_error and may
/// pass: the next call tries afresh. One thread only.
class DefaultsStore
{
public:
    explicit DefaultsStore(const QString &path);
    ~DefaultsStore();
    DefaultsStore(const DefaultsStore &) = delete;
    DefaultsStore &operator=(const DefaultsStore &) = delete;

    std::optional<StoredValue> read(const QString &key);

    /// All of `changes` are in the file at the path when the call returns. Where that file had gone, its
    /// other values are there as well.
    void apply(const Changes &changes);

    /// How long a call may wait for other processes, at each place where it meets them.
    void setPatience(std::chrono::milliseconds patience);

private:
    template <typename Action>
    std::invoke_result_t<Action> withRecovery(Action action);
    bool recover(const SqliteError &error);
    void follow(bool forWriting);
    void reopen();
    void replaceDamaged();
    void adoptFile();
    std::unique_ptr<DefaultsDatabase> openHealthy();
    void setDamagedAside();
    void removeOldCopies();

    const QString m_path;
    const QString m_folder;
    std::chrono::milliseconds m_patience{250};
    std::unique_ptr<DefaultsDatabase> m_database;
    std::optional<FileState> m_seen;
    std::chrono::sys_days m_lastRemoval; // of copies that were set aside long ago
    bool m_isSuspect = false;            // the connection failed; the next write tries a new one
    Checkpointer m_checkpointer;
};

} // namespace Kestrune
