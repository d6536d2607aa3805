#pragma once

#include <QByteArray>

#include <memory>
#include <span>

namespace Kestrune {

/// The reader from its start to its end. It is nobody's child: it ends itself, when this object goes, after
/// some seconds without a question, or when an answer takes it too long. One thread at a time; blocks.
class ReaderProcess
{
public:
    /// One for questions of that kind; null when it cannot be started.
    static std::unique_ptr<ReaderProcess> start(const QByteArray &program, const char *kind);
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;

    /// Whether it still waits for a question.
    bool isWaiting() const;

    /// Both descriptors stay the caller's. False when it ended instead: it is of no more use then.
    bool ask(std::span<const std::byte> question, int file, int memory, std::span<std::byte> answer);

private:
    explicit ReaderProcess(int socket)
        : m_socket(socket)
    {}

    bool send(std::span<const std::byte> question, int file, int memory) const;

    int m_socket;
};

} // namespace Kestrune
