#include "Walls.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr rlim_t kMostFiles = 16;

/// All that version 1 knows; later ones only add to it.
constexpr __u64 kAllOfFiles =
    LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_READ_FILE |
    LANDLOCK_ACCESS_FS_READ_DIR | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
    LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
    LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK |
    LANDLOCK_ACCESS_FS_MAKE_SYM;

bool limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    return ::setrlimit(resource, &both) == 0;
}

bool leaveFiles()
{
    landlock_ruleset_attr rules{};
    rules.handled_access_fs = kAllOfFiles;
    const auto set = static_cast<int>(::syscall(SYS_landlock_create_ruleset, &rules, sizeof rules, 0));
    if (set < 0)
        return errno == ENOSYS || errno == EOPNOTSUPP || errno == EPERM;
    const bool left = ::syscall(SYS_landlock_restrict_self, set, 0) == 0;
    ::close(set);
    return left;
}

/// What is needed to read what is open, to compute, and to answer.
constexpr std::array kCalls{
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(lseek),
    SCMP_SYS(fstat),

    SCMP_SYS(fcntl),
    SCMP_SYS(close),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(recvmsg),
    SCMP_SYS(sendmsg),
    SCMP_SYS(sendto),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(brk),
    SCMP_SYS(futex),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(sched_yield),
    SCMP_SYS(getrandom),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(alarm),
    SCMP_SYS(setitimer),
    SCMP_SYS(getpid),
    SCMP_SYS(gettid),
    SCMP_SYS(tgkill),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(eventfd2),
};

bool filterCalls()
{
    const scmp_filter_ctx filter = ::seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (!filter)
        return false;
    int fault = 0;
    const auto allow = [&](int call, auto... conditions) {
        fault |= ::seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, sizeof...(conditions), conditions...);
    };
    for (const int call : kCalls)
        allow(call);
    // Of what is open; by name nothing could be read either.
    allow(SCMP_SYS(newfstatat), SCMP_A3(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH));
    allow(SCMP_SYS(statx), SCMP_A2(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH));
    // Memory, but none that was data and becomes code.
    allow(SCMP_SYS(mmap), SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0));
    allow(SCMP_SYS(mprotect), SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0));
    // Threads, but no processes. The newer call's wishes cannot be looked at; without it the older one is
    // used.
    allow(SCMP_SYS(clone), SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD));
    fault |= ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0);
    allow(SCMP_SYS(prctl), SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME));
    fault |= ::seccomp_load(filter);
    ::seccomp_release(filter);
    return fault == 0;
}

} // namespace

bool Walls::raise(std::size_t mostMemory)
{
    return limit(RLIMIT_AS, mostMemory) && limit(RLIMIT_NOFILE, kMostFiles) && limit(RLIMIT_FSIZE, 0) &&
           limit(RLIMIT_CORE, 1) && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && leaveFiles() &&
           filterCalls();
}

} // namespace Kestrune
