#include "Desktop/Defaults/SqliteUserDefaults.h"

#include "Desktop/Defaults/DefaultsStore.h"
#include "Desktop/Defaults/Log.h"
#include "Desktop/Defaults/SqliteDatabase.h"

#include <QCoreApplication>
#include <QFile>
#include <QStandardPaths>

#include <cstdio>
#include <system_error>
#include <utility>

#include <sqlite3.h>

namespace Kestrune {

using std::chrono::milliseconds;

Q_LOGGING_CATEGORY(settingsLog, "kestrune.settings", QtWarningMsg)

namespace {

constexpr milliseconds patience{250};
constexpr milliseconds lastPatience{1000}; // of the last try, at the end of the program
constexpr std::chrono::seconds retryInterval{2};

/// Somebody else is writing, which is over soon as a rule.
bool isBusy(const std::exception &error)
{
    if (const auto *sqlite = dynamic_cast<const SqliteError *>(&error))
        return sqlite->code() == SQLITE_BUSY;
    const auto *system = dynamic_cast<const std::system_error *>(&error);
    return system && system->code() == std::errc::operation_would_block;
}

} // namespace

QString SqliteUserDefaults::path(const QString &domain)
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QLatin1Char('/') +
           domain + QStringLiteral("/defaults.sqlite");
}

SqliteUserDefaults::SqliteUserDefaults(const QString &path, Access access)
    : m_path(path)
    , m_store(access == Access::ReadWrite ? std::make_unique<DefaultsStore>(path) : nullptr)
{
    m_retry.setSingleShot(true);
    m_retry.callOnTimeout([this] { save(); });
}

SqliteUserDefaults::~SqliteUserDefaults()
{
    if (m_unsaved.empty())
        return;
    m_store->setPatience(lastPatience);
    save();
}

std::optional<DefaultsValue> SqliteUserDefaults::object(const QString &key) const
{
    const auto stored = find(key);
    return stored ? decode(*stored) : std::nullopt;
}

void SqliteUserDefaults::setObject(const QString &key, const DefaultsValue &value)
{
    change(key, encode(value));
}

void SqliteUserDefaults::removeObject(const QString &key) { change(key, std::nullopt); }

void SqliteUserDefaults::removeDamagedCopies()
{
    if (m_store)
        removeSetAside(m_path);
}

std::optional<StoredValue> SqliteUserDefaults::find(const QString &key) const
{
    if (const auto unsaved = m_unsaved.find(key); unsaved != m_unsaved.end())
        return unsaved->second;
    if (!m_store)
        return readExisting(m_path, key);
    try {
        return m_store->read(key);
    } catch (const std::exception &) {
        return readExisting(m_path, key); // a file that cannot be written may well be readable
    }
}

void SqliteUserDefaults::change(const QString &key, std::optional<StoredValue> value)
{
    if (!m_store)
        return;
    m_unsaved.insert_or_assign(key, std::move(value));
    save();
}

void SqliteUserDefaults::save()
{
    try {
        m_store->apply(m_unsaved);
        m_unsaved.clear();
        if (!m_failing.isValid())
            return;
        m_failing.invalidate();
        m_isReported = false;
        m_retry.stop();
        m_store->setPatience(patience);
        qCInfo(settingsLog, "the settings can be written again");
    } catch (const std::exception &error) {
        keepInMemory(error);
    }
}

void SqliteUserDefaults::keepInMemory(const std::exception &reason)
{
    if (!m_failing.isValid())
        m_failing.start();
    if (!m_isReported && (!isBusy(reason) || m_failing.hasExpired(milliseconds(retryInterval).count()))) {
        m_isReported = true;
        std::fprintf(stderr, "Kestrune: settings are kept in memory until %s can be written: %s\n",
                     QFile::encodeName(m_path).constData(), reason.what());
    }
    m_store->setPatience(milliseconds(0)); // one wait is enough: whoever holds the file may be stuck
    if (QCoreApplication::instance())
        m_retry.start(retryInterval);
}

} // namespace Kestrune
