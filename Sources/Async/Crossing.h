#pragma once

#include <utility>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

namespace Kestrune {

/// A function that Qt carries out on another thread. The thread sanitizer does not see into Qt, where the
/// lock of the other thread's events orders what was written before the call and what is read in it: it is
/// told so. Otherwise it is the function and nothing more.
template <typename Function>
class Crossing
{
public:
    explicit Crossing(Function function)
        : m_function(std::move(function))
    {
        leave();
    }
    Crossing(Crossing &&other) noexcept
        : m_function(std::move(other.m_function))
    {
        leave();
    }
    Crossing &operator=(Crossing &&) = delete;
    ~Crossing() { arrive(); }

    void operator()()
    {
        arrive();
        m_function();
    }

private:
#if defined(__SANITIZE_THREAD__)
    void leave() { __tsan_release(this); }
    void arrive() { __tsan_acquire(this); }
#else
    void leave() {}
    void arrive() {}
#endif

    Function m_function;
};

} // namespace Kestrune
