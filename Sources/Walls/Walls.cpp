#include "Walls.h"

#include "CallFilter.h"

#include <cerrno>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr std::size_t kReaderFiles = 16;

constexpr __u64 kReadFile = LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_READ_FILE;

/// All that version 1 knows; later ones only add to it.
constexpr __u64 kAllOfFiles =
    kReadFile | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_READ_DIR | LANDLOCK_ACCESS_FS_REMOVE_DIR |
    LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR |
    LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
    LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

bool limitResource(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    return ::setrlimit(resource, &both) == 0;
}

/// Whether it is in the rules, or not there.
bool keep(int rules, const Walls::Reachable &reachable)
{
    const int file = ::open(reachable.path.c_str(), O_PATH | O_CLOEXEC);
    struct stat status
    {};
    if (file < 0 || ::fstat(file, &status) != 0)
        return true;
    landlock_path_beneath_attr rule{};
    rule.parent_fd = file;
    rule.allowed_access = kReadFile;
    if (S_ISDIR(status.st_mode))
        rule.allowed_access |= LANDLOCK_ACCESS_FS_READ_DIR;
    if (reachable.isWritable)
        rule.allowed_access |= LANDLOCK_ACCESS_FS_WRITE_FILE;
    const bool kept = ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
    ::close(file);
    return kept;
}

} // namespace

bool Walls::limit(std::size_t mostMemory, std::size_t mostFiles)
{
    return limitResource(RLIMIT_AS, mostMemory) && limitResource(RLIMIT_NOFILE, mostFiles) &&
           limitResource(RLIMIT_CORE, 1) && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
}

bool Walls::leaveFiles(std::span<const Reachable> stay)
{
    landlock_ruleset_attr attributes{};
    attributes.handled_access_fs = kAllOfFiles;
    const auto rules =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0));
    if (rules < 0)
        return errno == ENOSYS || errno == EOPNOTSUPP || errno == EPERM;
    bool left = true;
    for (const Reachable &reachable : stay)
        left = left && keep(rules, reachable);
    left = left && ::syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    ::close(rules);
    return left;
}

bool Walls::raiseAroundReader(std::size_t mostMemory)
{
    CallFilter filter(CallFilter::Others::refused);
    filter.allowComputing();
    return limit(mostMemory, kReaderFiles) && limitResource(RLIMIT_FSIZE, 0) && leaveFiles() && filter.load();
}

} // namespace Kestrune
