#pragma once

#include "ReaderWire.h"

#include <QByteArray>

#include <memory>
#include <optional>

namespace Kestrune {

/// The reader from its start to its end. It is nobody's child: it ends itself, when this object goes, after
/// some seconds without a question, or when an answer takes it too long. One thread at a time; blocks.
class ReaderProcess
{
public:
    /// Null when it cannot be started.
    static std::unique_ptr<ReaderProcess> start(const QByteArray &program);
    ~ReaderProcess();
    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;

    /// Both descriptors stay the caller's. Nothing when it ended instead: it is of no more use then.
    std::optional<ReaderWire::Answer> ask(const ReaderWire::Question &question, int file, int memory);

private:
    explicit ReaderProcess(int socket)
        : m_socket(socket)
    {}

    bool send(const ReaderWire::Question &question, int file, int memory) const;

    int m_socket;
};

} // namespace Kestrune
