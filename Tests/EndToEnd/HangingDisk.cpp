// Runs a program for which everything below one folder hangs, as on a disk whose server has gone: each call
// of the system with such a path never returns, but dies with its process.
//
//   HangingDisk FOLDER PROGRAM [ARGUMENT...]
//
// While the file FOLDER.answers exists, the folder answers. Ends as the program does. The kernel asks this
// process about the calls (seccomp's user notification), which lets all go on but those.

#include <atomic>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <future>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
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

/// The text at that place of another process; what of it can be read. It ends on the page after its first at
/// the latest, which may not be there.
std::string textAt(pid_t process, std::uint64_t address)
{
    constexpr std::size_t kPage = 4096;
    char text[kPage + 1] = {};
    const std::size_t first = kPage - address % kPage;
    const iovec here{text, kPage};
    const iovec there[] = {{reinterpret_cast<void *>(address), first},
                           {reinterpret_cast<void *>(address + first), kPage - first}};
    ::process_vm_readv(process, &here, 1, there, 2, 0);
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
    std::promise<int> listener;
    int status = 0;
    std::atomic<bool> ended = false;
    // The filter is this thread's and its child's. It stays, because the child dies with it.
    std::jthread parent([&] {
        listener.set_value(installFilter());
        const pid_t program = ::fork();
        if (program == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            ::execv(argv[2], argv + 2);
        }
        if (program <= 0)
            fail(argv[2]);
        ::waitpid(program, &status, 0);
        ended = true;
    });
    pollfd source{listener.get_future().get(), POLLIN, 0};
    while (!ended) {
        if (::poll(&source, 1, 100) > 0 && (source.revents & POLLIN) != 0)
            answer(source.fd, argv[1]);
    }
    if (WIFSIGNALED(status))
        ::raise(WTERMSIG(status));
    return WEXITSTATUS(status);
}
