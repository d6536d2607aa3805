#include "ReaderProcess.h"

#include "ReaderWire.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr int kLongestAnswer = (ReaderWire::kLongest + 5) * 1000; // ms; it is to end by itself before.

/// The signals that end a reader which takes too long must reach it, whatever the thread that starts it
/// blocks.
class SignalsUnblocked
{
public:
    SignalsUnblocked()
    {
        if (::posix_spawnattr_init(&m_attributes) != 0)
            return;
        m_made = true;
        sigset_t none;
        ::sigemptyset(&none);
        ::posix_spawnattr_setsigmask(&m_attributes, &none);
        ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK);
    }
    ~SignalsUnblocked()
    {
        if (m_made)
            ::posix_spawnattr_destroy(&m_attributes);
    }
    Q_DISABLE_COPY_MOVE(SignalsUnblocked)

    const posix_spawnattr_t *get() const { return m_made ? &m_attributes : nullptr; }

private:
    posix_spawnattr_t m_attributes{};
    bool m_made = false;
};

/// Starts it with the socket alone: what the libraries say of damaged pictures is of no use to anybody, and
/// would be a way out. Whether the process that did so ended well.
bool spawn(const QByteArray &program, const char *kind, int socket)
{
    posix_spawn_file_actions_t actions;
    if (::posix_spawn_file_actions_init(&actions) != 0)
        return false;
    std::array<char *, 3> arguments{const_cast<char *>(program.constData()), const_cast<char *>(kind),
                                    nullptr};
    pid_t process = 0;
    const SignalsUnblocked attributes;
    const auto leadNowhere = [&](int stream) {
        return ::posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_RDWR, 0) == 0;
    };
    const bool started =
        leadNowhere(STDIN_FILENO) && leadNowhere(STDOUT_FILENO) && leadNowhere(STDERR_FILENO) &&
        ::posix_spawn_file_actions_adddup2(&actions, socket, ReaderWire::kSocket) == 0 &&
        ::posix_spawn_file_actions_addclosefrom_np(&actions, ReaderWire::kSocket + 1) == 0 &&
        ::posix_spawn(&process, program.constData(), &actions, attributes.get(), arguments.data(), environ) ==
            0;
    ::posix_spawn_file_actions_destroy(&actions);
    if (!started)
        return false;
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Whether there is something to read, or nothing will ever be. A signal begins the wait anew: only a stopped
/// reader is waited for so long, a running one ends by itself.
bool wait(int socket, int milliseconds)
{
    pollfd answer{socket, POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&answer, 1, milliseconds);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

std::unique_ptr<ReaderProcess> ReaderProcess::start(const QByteArray &program, const char *kind)
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {};
    std::unique_ptr<ReaderProcess> reader(new ReaderProcess(ends[0]));
    const bool started = spawn(program, kind, ends[1]);
    ::close(ends[1]);
    return started ? std::move(reader) : nullptr;
}

ReaderProcess::~ReaderProcess() { ::close(m_socket); }

bool ReaderProcess::isWaiting() const { return !wait(m_socket, 0); }

bool ReaderProcess::ask(std::span<const std::byte> question, int file, int memory,
                        std::span<std::byte> answer)
{
    return send(question, file, memory) && wait(m_socket, kLongestAnswer) &&
           ::recv(m_socket, answer.data(), answer.size(), MSG_TRUNC) == static_cast<ssize_t>(answer.size());
}

bool ReaderProcess::send(std::span<const std::byte> question, int file, int memory) const
{
    const std::array<int, 2> files{file, memory};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof files)> control{};
    iovec part{const_cast<std::byte *>(question.data()), question.size()};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    cmsghdr *const header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof files);
    std::memcpy(CMSG_DATA(header), files.data(), sizeof files);
    return ::sendmsg(m_socket, &message, MSG_NOSIGNAL) == static_cast<ssize_t>(question.size());
}

} // namespace Kestrune
