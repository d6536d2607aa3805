#include "CallFilter.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>

namespace Kestrune {

namespace {

constexpr std::array kComputing{
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

} // namespace

CallFilter::CallFilter(Others others)
    : m_filter(::seccomp_init(others == Others::allowed ? SCMP_ACT_ALLOW : SCMP_ACT_ERRNO(kRefused)))
    , m_fault(m_filter ? ::seccomp_attr_set(m_filter, SCMP_FLTATR_CTL_TSYNC, 1) : -1)
{
    static_assert(kRefused == EPERM);
}

CallFilter::~CallFilter()
{
    if (m_filter)
        ::seccomp_release(m_filter);
}

void CallFilter::allowComputing()
{
    for (const int call : kComputing)
        allow(call);
    // Of what is open; by name nothing could be read either.
    allow(SCMP_SYS(newfstatat), SCMP_A3(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH));
    allow(SCMP_SYS(statx), SCMP_A2(SCMP_CMP_MASKED_EQ, AT_EMPTY_PATH, AT_EMPTY_PATH));
    // Memory, but none that was data and becomes code.
    allow(SCMP_SYS(mmap), SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0));
    allow(SCMP_SYS(mprotect), SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0));
    allow(SCMP_SYS(clone), SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD));
    // The newer call's wishes cannot be looked at; without it the older one is used.
    add(SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3));
    allow(SCMP_SYS(prctl), SCMP_A0(SCMP_CMP_EQ, PR_SET_NAME));
}

void CallFilter::refuseProcesses()
{
    refuse(SCMP_SYS(clone), SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, 0));
    add(SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3));
    for (const int call : {SCMP_SYS(fork), SCMP_SYS(vfork), SCMP_SYS(execve), SCMP_SYS(execveat),
                           SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv), SCMP_SYS(process_vm_writev),
                           SCMP_SYS(kill), SCMP_SYS(pidfd_open), SCMP_SYS(io_uring_setup), SCMP_SYS(unshare)})
        refuse(call);
}

bool CallFilter::load() { return m_fault == 0 && ::seccomp_load(m_filter) == 0; }

} // namespace Kestrune
