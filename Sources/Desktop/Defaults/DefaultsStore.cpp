#include "Desktop/Defaults/DefaultsStore.h"

#include "Desktop/Defaults/Log.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <utility>

#include <sqlite3.h>

namespace Kestrune {

namespace {

constexpr std::chrono::days keptFor{30}; // a damaged file

} // namespace

DefaultsStore::DefaultsStore(const QString &path)
    : m_path(path)
    , m_folder(QFileInfo(path).path())
    , m_checkpointer(path)
{}

DefaultsStore::~DefaultsStore()
{
    if (!m_checkpointer.stop() || !m_database)
        return;
    try {
        m_database->checkpoint();
    } catch (const SqliteError &) {
        return; // the values are in the log; whoever opens the file next finds them there
    }
}

std::optional<StoredValue> DefaultsStore::read(const QString &key)
{
    return withRecovery([&] {
        follow(false);
        return m_database->read(key);
    });
}

void DefaultsStore::apply(const Changes &changes)
{
    withRecovery([&] {
        follow(true);
        if (!m_database->apply(changes))
            return;
        // The file may have been exchanged since follow() looked, and the write gone with the old one.
        if (fileIdentity(m_path) != m_database->identity())
            throw SqliteError(SQLITE_ERROR, "the file was replaced");
        if (m_database->hasLog())
            m_checkpointer.schedule(m_database->identity(), m_database->isLogLong());
    });
    removeOldCopies();
}

void DefaultsStore::setPatience(std::chrono::milliseconds patience)
{
    m_patience = patience;
    if (m_database)
        m_database->setPatience(patience);
}

template <typename Action>
std::invoke_result_t<Action> DefaultsStore::withRecovery(Action action)
{
    for (int retries = 2;; --retries) {
        try {
            return action();
        } catch (const SqliteError &error) {
            qCInfo(settingsLog, "error %d: %s", error.code(), error.what());
            if (retries == 0 || !recover(error))
                throw;
        }
    }
}

bool DefaultsStore::recover(const SqliteError &error)
{
    if (!m_database)
        return false;
    if (error.isDamage()) {
        replaceDamaged();
        return true;
    }
    if (error.code() == SQLITE_ERROR) { // another file, or this one emptied: no table for the statements
        reopen();
        return true;
    }
    m_isSuspect = error.code() != SQLITE_BUSY && error.code() != SQLITE_FULL;
    return false;
}

void DefaultsStore::follow(bool forWriting)
{
    const auto state = fileState(m_path);
    const bool isReplaced = m_database && state && state->identity != m_database->identity();
    const bool mustCreate = forWriting && !state && isMissing(m_path);
    if (!m_database || isReplaced || mustCreate || (forWriting && m_isSuspect)) {
        qCDebug(settingsLog, isReplaced ? "the file was replaced" : "the file is opened");
        reopen();
    } else if (state && state != m_seen) {
        m_database->forgetPages(); // a checkpoint, or a backup copied over the file
        m_seen = state;
    }
}

void DefaultsStore::reopen()
{
    makePrivateFolder(m_folder);
    const FolderLock lock(m_folder, m_patience);
    adoptFile();
}

void DefaultsStore::replaceDamaged()
{
    const FolderLock lock(m_folder, m_patience);
    // Unless another process was first: then its new file is at the path by now.
    if (fileIdentity(m_path) == m_database->identity()) {
        m_database->abandon();
        m_database.reset();
        setDamagedAside();
    }
    adoptFile();
}

/// Opens what is at the path, with the folder locked. The present database stays until that has worked.
void DefaultsStore::adoptFile()
{
    Changes rescued;
    const bool isGone = m_database && fileIdentity(m_path) != m_database->identity();
    if (isGone && isMissing(m_path))
        rescued = m_database->contents();
    if (isGone)
        m_database->removeLog();
    auto fresh = openHealthy();
    fresh->apply(rescued);
    if (isGone)
        m_database->abandon();
    m_database = std::move(fresh);
    m_seen = fileState(m_path);
    m_isSuspect = false;
}

std::unique_ptr<DefaultsDatabase> DefaultsStore::openHealthy()
{
    try {
        return std::make_unique<DefaultsDatabase>(m_path, m_patience);
    } catch (const SqliteError &error) {
        if (!error.isDamage())
            throw;
        setDamagedAside();
        return std::make_unique<DefaultsDatabase>(m_path, m_patience);
    }
}

void DefaultsStore::setDamagedAside()
{
    const QString name = setAside(m_path);
    std::fprintf(stderr, "Kestrune: damaged settings were set aside as %s; starting afresh\n",
                 QFile::encodeName(name).constData());
}

/// Looks once a day that something is written, and with the first write.
void DefaultsStore::removeOldCopies()
{
    const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    if (std::exchange(m_lastRemoval, today) != today)
        removeSetAside(m_path, keptFor);
}

} // namespace Kestrune
