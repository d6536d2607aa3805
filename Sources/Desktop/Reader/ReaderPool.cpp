#include "ReaderPool.h"

#include "Desktop/Helpers/InstalledHelper.h"
#include "Log.h"
#include "ReaderWire.h"

#include <QFile>

namespace Kestrune {

Q_LOGGING_CATEGORY(readerLog, "kestrune.reader", QtWarningMsg)

namespace {

constexpr int kLongestIdle = (ReaderWire::kLongestIdle - 5) * 1000; // ms

} // namespace

ReaderPool::ReaderPool(const QString &program, const char *kind)
    : m_program(QFile::encodeName(program))
    , m_kind(kind)
{}

ReaderPool::~ReaderPool() = default;

QString ReaderPool::installed() { return installedHelper(QStringLiteral("kestrune-reader")); }

std::optional<ReaderFault> ReaderPool::askOne(std::span<const std::byte> question, int file, int memory,
                                              std::span<std::byte> answer)
{
    std::unique_ptr<ReaderProcess> process = takeIdle();
    if (!process)
        process = ReaderProcess::start(m_program, m_kind);
    if (!process) {
        qCWarning(readerLog, "what reads %s cannot be started", m_kind);
        return ReaderFault::missing;
    }
    if (!process->ask(question, file, memory, answer))
        return ReaderFault::ended;
    const std::lock_guard lock(m_mutex);
    m_idle = std::move(process);
    m_idleEnd.setRemainingTime(kLongestIdle);
    return std::nullopt;
}

std::unique_ptr<ReaderProcess> ReaderPool::takeIdle()
{
    const std::lock_guard lock(m_mutex);
    const bool isUsable = m_idle && !m_idleEnd.hasExpired() && m_idle->isWaiting();
    std::unique_ptr<ReaderProcess> taken = std::move(m_idle);
    return isUsable ? std::move(taken) : nullptr;
}

} // namespace Kestrune
