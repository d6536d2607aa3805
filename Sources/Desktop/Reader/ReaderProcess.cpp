#include "ReaderProcess.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr int kLongestAnswer = (ReaderWire::kLongest + 5) * 1000; // ms; it is to end by itself before.

/// Starts it with the socket and the standard streams alone. Whether the process that did so ended well.
bool spawn(const QByteArray &program, int socket)
{
    posix_spawn_file_actions_t actions;
    if (::posix_spawn_file_actions_init(&actions) != 0)
        return false;
    std::array<char *, 2> arguments{const_cast<char *>(program.constData()), nullptr};
    pid_t process = 0;
    const bool started =
        ::posix_spawn_file_actions_adddup2(&actions, socket, ReaderWire::kSocket) == 0 &&
        ::posix_spawn_file_actions_addclosefrom_np(&actions, ReaderWire::kSocket + 1) == 0 &&
        ::posix_spawn(&process, program.constData(), &actions, nullptr, arguments.data(), environ) == 0;
    ::posix_spawn_file_actions_destroy(&actions);
    if (!started)
        return false;
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// A signal begins the wait anew: only a stopped reader is waited for so long, a running one ends by itself.
bool answersInTime(int socket)
{
    pollfd answer{socket, POLLIN, 0};
    int ready = 0;
    do {
        ready = ::poll(&answer, 1, kLongestAnswer);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

std::unique_ptr<ReaderProcess> ReaderProcess::start(const QByteArray &program)
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return {};
    std::unique_ptr<ReaderProcess> reader(new ReaderProcess(ends[0]));
    const bool started = spawn(program, ends[1]);
    ::close(ends[1]);
    return started ? std::move(reader) : nullptr;
}

ReaderProcess::~ReaderProcess() { ::close(m_socket); }

std::optional<ReaderWire::Answer> ReaderProcess::ask(const ReaderWire::Question &question, int file,
                                                     int memory)
{
    ReaderWire::Answer answer{};
    if (!send(question, file, memory) || !answersInTime(m_socket) ||
        ::recv(m_socket, &answer, sizeof answer, 0) != sizeof answer)
        return std::nullopt;
    return answer;
}

bool ReaderProcess::send(const ReaderWire::Question &question, int file, int memory) const
{
    const std::array<int, 2> files{file, memory};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof files)> control{};
    iovec part{const_cast<ReaderWire::Question *>(&question), sizeof question};
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
    return ::sendmsg(m_socket, &message, MSG_NOSIGNAL) == sizeof question;
}

} // namespace Kestrune
