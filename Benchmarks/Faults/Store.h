#pragma once

#include "Desktop/Defaults/SqliteDatabase.h"

#include <QDir>
#include <QTemporaryDir>

namespace Faults {

/// A copy of what a program that was killed left of its store: looking at it leaves the original as it is.
class StoreCopy
{
public:
    /// `folder` holds the store.
    explicit StoreCopy(const QString &folder)
        : m_names(QDir(folder).entryList(QDir::Files | QDir::Hidden))
    {
        for (const QString &name : m_names) {
            if (!name.endsWith(QLatin1String("-shm"))) // Which a start after a crash would not trust either.
                QFile::copy(folder + u'/' + name, m_folder.filePath(name));
        }
    }

    bool exists() const { return m_names.contains(QStringLiteral("defaults.sqlite")); }
    bool hasDamagedCopies() const { return !m_names.filter(QStringLiteral(".damaged-")).isEmpty(); }

    /// What is wrong with the file, or "ok".
    QString verdict() const
    {
        try {
            Kestrune::SqliteDatabase database(file(), Kestrune::SqliteDatabase::Mode::ReadWrite);
            Kestrune::SqliteStatement check(database, "PRAGMA integrity_check(1)");
            Kestrune::SqliteRun run(check);
            const auto text = run.next() ? run.column(0) : Kestrune::SqliteValue();
            const auto *said = std::get_if<Kestrune::SqliteText>(&text);
            return said ? QString::fromUtf8(said->utf8) : QStringLiteral("nothing to check");
        } catch (const std::exception &error) {
            return QString::fromUtf8(error.what());
        }
    }

private:
    QString file() const { return m_folder.filePath(QStringLiteral("defaults.sqlite")); }

    QTemporaryDir m_folder;
    QStringList m_names;
};

} // namespace Faults
