// Runs a program for which everything below one folder hangs, as on a disk whose server has gone: each call
// of the system with such a path never returns, but dies with its process.
//
//   HangingDisk FOLDER PROGRAM [ARGUMENT...]
//
// While the file FOLDER.answers exists, the folder answers. Ends as the program does. The kernel asks this
// process about the calls (seccomp's user notification), which lets all go on but those.

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <linux/filter.h>
#include <linux/seccomp.h>

namespace {

[[noreturn]] void fail(const char *what)
{
    std::perror(what);
    std::exit(125);
}

/// The calls that take a path, and which of their arguments that is.
struct Call
{
    unsigned number;
    unsigned path;
};

const std::vector<Call> &calls()
{
    static const std::vector<Call> all{
        {SYS_openat, 1},     {SYS_newfstatat, 1}, {SYS_statx, 1},  {SYS_faccessat, 1},
        {SYS_faccessat2, 1}, {SYS_readlinkat, 1}, {SYS_statfs, 0}, {SYS_inotify_add_watch, 1},
#ifdef SYS_open
        {SYS_open, 0},       {SYS_stat, 0},       {SYS_lstat, 0},  {SYS_access, 0},
        {SYS_readlink, 0},
#endif
    };
    return all;
}

/// Installs the filter for this thread and its children. The descriptor on which the kernel asks.
int installFilter()
{
    std::vector<sock_filter> program;
    program.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)));
    for (const Call &call : calls()) {
        program.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call.number, 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_USER_NOTIF));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        fail("prctl");
    const long listener =
        ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, SECCOMP_FILTER_FLAG_NEW_LISTENER, &filter);
    if (listener < 0)
        fail("seccomp");
    return static_cast<int>(listener);
}

/// Sends a descriptor, or with -1 receives one.
int passDescriptor(int socket, int descriptor)
{
    char byte = 0;
    iovec data{&byte, 1};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr message{};
    message.msg_iov = &data;
    message.msg_iovlen = 1;
    message.msg_control = control;
    message.msg_controllen = sizeof control;
    if (descriptor < 0) {
        if (::recvmsg(socket, &message, MSG_CMSG_CLOEXEC) != 1 || !CMSG_FIRSTHDR(&message))
            fail("recvmsg");
        std::memcpy(&descriptor, CMSG_DATA(CMSG_FIRSTHDR(&message)), sizeof descriptor);
        return descriptor;
    }
    cmsghdr *header = CMSG_FIRSTHDR(&message);
    header->cmsg_level = SOL_SOCKET;
    header->cmsg_type = SCM_RIGHTS;
    header->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(header), &descriptor, sizeof descriptor);
    if (::sendmsg(socket, &message, 0) != 1)
        fail("sendmsg");
    return descriptor;
}

/// The text at that place of another process; what of it can be read.
std::string textAt(pid_t process, std::uint64_t address)
{
    std::string text;
    while (text.size() < 4096) {
        char piece[256];
        // Never over the end of a page: the next one may not be there.
        const std::size_t wanted = sizeof piece - address % sizeof piece;
        iovec here{piece, wanted};
        iovec there{reinterpret_cast<void *>(address), wanted};
        const ssize_t got = ::process_vm_readv(process, &here, 1, &there, 1, 0);
        if (got <= 0)
            break;
        const void *end = std::memchr(piece, 0, static_cast<std::size_t>(got));
        text.append(piece, end ? static_cast<std::size_t>(static_cast<const char *>(end) - piece)
                               : static_cast<std::size_t>(got));
        if (end)
            break;
        address += static_cast<std::uint64_t>(got);
    }
    return text;
}

bool isBelow(const std::string &path, const std::string &folder)
{
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

std::string threadName(pid_t thread)
{
    std::string name;
    std::getline(std::ifstream("/proc/" + std::to_string(thread) + "/comm"), name);
    return name;
}

/// Answers the next question of the kernel, or leaves it open.
void answer(int listener, const std::string &folder)
{
    seccomp_notif question{};
    if (::ioctl(listener, SECCOMP_IOCTL_NOTIF_RECV, &question) != 0)
        return; // The caller has gone.
    const auto caller = static_cast<pid_t>(question.pid);
    for (const Call &call : calls()) {
        if (call.number != static_cast<unsigned>(question.data.nr))
            continue;
        const std::string path = textAt(caller, question.data.args[call.path]);
        if (isBelow(path, folder) && ::access((folder + ".answers").c_str(), F_OK) != 0) {
            std::fprintf(stderr, "%s hangs at %s\n", threadName(caller).c_str(), path.c_str());
            return;
        }
    }
    seccomp_notif_resp reply{};
    reply.id = question.id;
    reply.flags = SECCOMP_USER_NOTIF_FLAG_CONTINUE;
    ::ioctl(listener, SECCOMP_IOCTL_NOTIF_SEND, &reply);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3) {
        std::fputs("usage: HangingDisk FOLDER PROGRAM [ARGUMENT...]\n", stderr);
        return 125;
    }
    int sockets[2];
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, sockets) != 0)
        fail("socketpair");
    const pid_t program = ::fork();
    if (program == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        const int listener = installFilter();
        passDescriptor(sockets[1], listener);
        ::close(listener);
        ::execv(argv[2], argv + 2);
        fail(argv[2]);
    }
    if (program < 0)
        fail("fork");
    const int listener = passDescriptor(sockets[0], -1);
    // The listener hangs up once no process has the filter any more.
    pollfd source{listener, POLLIN, 0};
    int status = 0;
    for (;;) {
        const int happened = ::poll(&source, 1, 100);
        if (happened > 0 && (source.revents & POLLIN) != 0)
            answer(listener, argv[1]);
        if (::waitpid(program, &status, WNOHANG) == program)
            break;
    }
    if (WIFSIGNALED(status))
        ::raise(WTERMSIG(status));
    return WEXITSTATUS(status);
}
