#pragma once

#include <cstdint>

#include <seccomp.h>

namespace Kestrune {

/// Which calls of the kernel all threads of this process may make from the loading on; what is refused fails
/// with EPERM. Filters add up: a later one takes away only. (kernel.org, userspace-api/seccomp_filter)
class CallFilter
{
public:
    enum class Others { refused, allowed };
    explicit CallFilter(Others others);
    ~CallFilter();
    CallFilter(const CallFilter &) = delete;
    CallFilter &operator=(const CallFilter &) = delete;

    /// Under all of the conditions (SCMP_A0 and so on); called again for the same call, under these as well.
    void allow(int call, auto... conditions) { add(SCMP_ACT_ALLOW, call, conditions...); }
    void refuse(int call, auto... conditions) { add(SCMP_ACT_ERRNO(kRefused), call, conditions...); }
    /// To read and write what is open, to compute, and to end.
    void allowComputing();
    /// Threads stay, processes do not.
    void refuseProcesses();

    bool load();

private:
    static constexpr int kRefused = 1; // EPERM

    void add(std::uint32_t action, int call, auto... conditions)
    {
        m_fault |= ::seccomp_rule_add(m_filter, action, call, sizeof...(conditions), conditions...);
    }

    scmp_filter_ctx m_filter;
    int m_fault = 0;
};

} // namespace Kestrune
