// The thread sanitizer takes every clone for a fork. QProcess makes its child with the parent's own memory,
// where the sanitizer would then look at the parent no more, and refuse it new threads. The tests' programs
// have this one instead.

#include <cstdarg>

#include <dlfcn.h>
#include <sched.h>
#include <sys/types.h>

extern "C" int clone(int (*function)(void *), void *stack, int flags, void *argument, ...)
{
    using Clone = int (*)(int (*)(void *), void *, int, void *, ...);
    static const auto plain =
        reinterpret_cast<Clone>(::dlsym(::dlopen("libc.so.6", RTLD_LAZY | RTLD_NOLOAD), "clone"));
    va_list rest;
    va_start(rest, argument);
    auto *const descriptor = va_arg(rest, pid_t *); // QProcess passes nothing more.
    va_end(rest);
    return plain(function, stack, flags, argument, descriptor);
}
