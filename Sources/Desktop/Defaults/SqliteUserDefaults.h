#pragma once

#include "Desktop/Defaults/StoredValue.h"
#include "NotchKit/Platform/UserDefaults.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

namespace Kestrune {

class DefaultsStore;

/// A domain kept in one SQLite file.
///
/// A write is in the file when the call returns, so that it survives the end of this process, however it
/// comes; within about a second it survives a power cut too. A damaged file is renamed and a new one
/// begun; 30 days later what was renamed is removed. What cannot be written is kept in memory and written as
/// soon as that works again: with the next write, after some seconds where an event loop runs, or at the end.
/// Standard error says so once; where another process is just writing, not before that has lasted for some
/// seconds.
class SqliteUserDefaults : public UserDefaults
{
public:
    enum class Access {
        ReadWrite, ///< Creates file and folder when missing, for the user alone.
        ReadOnly,  ///< Creates nothing, writes nothing, reports nothing, as for another program's domain.
    };

    /// Where the file of `domain` is, such as "org.example.Program".
    static QString path(const QString &domain);

    /// Opens the file at the first use only.
    explicit SqliteUserDefaults(const QString &path, Access access = Access::ReadWrite);
    ~SqliteUserDefaults() override;

    std::optional<DefaultsValue> object(const QString &key) const override;
    void setObject(const QString &key, const DefaultsValue &value) override;
    void removeObject(const QString &key) override;
    void removeDamagedCopies() override;

private:
    std::optional<StoredValue> find(const QString &key) const;
    void change(const QString &key, std::optional<StoredValue> value);
    void save();
    void keepInMemory(const std::exception &reason);

    const QString m_path;
    const std::unique_ptr<DefaultsStore> m_store; // none for ReadOnly
    Changes m_unsaved;
    QElapsedTimer m_failing; ///< Since the first of the writes that fail.
    bool m_isReported = false;
    QTimer m_retry;
};

} // namespace Kestrune
