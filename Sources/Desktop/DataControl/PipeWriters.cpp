#include "PipeWriters.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kPatience = 10s;
constexpr size_t kMostReaders = 64;
constexpr qsizetype kWritten = qsizetype{256} * 1024; // At once.

/// A write to one of the others may wait, whatever it was told.
bool isPipe(const Descriptor &descriptor)
{
    struct stat status
    {};
    return ::fstat(descriptor.get(), &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

} // namespace

void PipeWriters::add(Descriptor reader, const QByteArray &content)
{
    if (!isPipe(reader) || content.isEmpty())
        return;
    const int flags = ::fcntl(reader.get(), F_GETFL);
    ::fcntl(reader.get(), F_SETFL, flags | O_NONBLOCK);
    if (m_writers.size() >= kMostReaders)
        m_writers.erase(std::ranges::min_element(m_writers, {}, &Writer::deadline));
    m_writers.push_back({std::move(reader), content, 0, Clock::now() + kPatience});
}

void PipeWriters::addTo(std::vector<pollfd> &polled) const
{
    for (const Writer &writer : m_writers)
        polled.push_back({writer.reader.get(), POLLOUT, 0});
}

void PipeWriters::write(std::span<const pollfd> polled)
{
    for (size_t i = 0; i < polled.size(); ++i) {
        if (polled[i].revents != 0)
            writePiece(m_writers[i]);
    }
    std::erase_if(m_writers, [](const Writer &writer) { return writer.reader.get() < 0; });
}

void PipeWriters::writePiece(Writer &writer)
{
    const qsizetype size = std::min(kWritten, writer.content.size() - writer.sent);
    const auto taken =
        ::write(writer.reader.get(), writer.content.constData() + writer.sent, static_cast<size_t>(size));
    if (taken > 0) {
        writer.sent += taken;
        writer.deadline = Clock::now() + kPatience;
    }
    const bool isGone = taken < 0 && errno != EAGAIN && errno != EINTR;
    if (isGone || writer.sent == writer.content.size())
        writer.reader.close();
}

std::optional<PipeWriters::Clock::time_point> PipeWriters::deadline() const
{
    const auto first = std::ranges::min_element(m_writers, {}, &Writer::deadline);
    return first != m_writers.end() ? std::optional(first->deadline) : std::nullopt;
}

void PipeWriters::expire(Clock::time_point now)
{
    std::erase_if(m_writers, [now](const Writer &writer) { return writer.deadline <= now; });
}

} // namespace Kestrune
