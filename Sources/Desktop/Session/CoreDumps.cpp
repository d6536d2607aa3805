#include "CoreDumps.h"

#include <algorithm>

#include <sys/resource.h>

namespace Kestrune {

namespace {

/// In bytes. The kernel hands even an empty one to a collecting program, unless this little is allowed.
constexpr rlim_t kNone = 1;

rlimit *former()
{
    static rlimit limit{};
    return &limit;
}

} // namespace

void CoreDumps::forbid()
{
    if (::getrlimit(RLIMIT_CORE, former()) != 0)
        return;
    const rlimit none{std::min(kNone, former()->rlim_max), former()->rlim_max};
    ::setrlimit(RLIMIT_CORE, &none);
}

void CoreDumps::allow(QProcess &process)
{
    if (former()->rlim_max == 0)
        return;
    process.setChildProcessModifier([] { ::setrlimit(RLIMIT_CORE, former()); });
}

} // namespace Kestrune
