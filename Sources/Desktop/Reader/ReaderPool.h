#pragma once

#include "ReaderProcess.h"

#include <QDeadlineTimer>
#include <QString>

#include <mutex>
#include <optional>
#include <variant>

namespace Kestrune {

/// Why there is no answer.
enum class ReaderFault {
    missing, ///< The reader could not be started.
    ended,   ///< It ended over the question, or was too slow.
};

/// Readers for one kind of question. One is kept for the next question, others serve those who ask meanwhile.
/// Any thread; blocks.
class ReaderPool
{
public:
    /// `kind` is one of ReaderWire's.
    ReaderPool(const QString &program, const char *kind);
    ~ReaderPool();
    Q_DISABLE_COPY_MOVE(ReaderPool)

    /// The one that came with this program, beside it or among its files; empty when there is none.
    static QString installed();

    template <typename Answer, typename Question>
    std::variant<Answer, ReaderFault> ask(const Question &question, int file, int memory)
    {
        Answer answer{};
        const auto fault = askOne(std::as_bytes(std::span(&question, 1)), file, memory,
                                  std::as_writable_bytes(std::span(&answer, 1)));
        if (fault)
            return *fault;
        return answer;
    }

private:
    std::optional<ReaderFault> askOne(std::span<const std::byte> question, int file, int memory,
                                      std::span<std::byte> answer);
    std::unique_ptr<ReaderProcess> takeIdle();

    const QByteArray m_program;
    const char *const m_kind;
    std::mutex m_mutex;
    std::unique_ptr<ReaderProcess> m_idle;
    QDeadlineTimer m_idleEnd; ///< It may be about to end from then on.
};

} // namespace Kestrune
