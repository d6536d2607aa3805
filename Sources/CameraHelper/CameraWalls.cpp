#include "CameraWalls.h"

#include "Walls/CallFilter.h"
#include "Walls/Walls.h"

#include <array>
#include <cstdlib>
#include <vector>

#include <glob.h>
#include <linux/netlink.h>
#include <sys/socket.h>

namespace Kestrune {

namespace {

constexpr std::size_t kMostMemory = std::size_t{4} << 30; // Of addresses: each thread takes many.
constexpr std::size_t kMostFiles = 256;
constexpr unsigned kKindOfIoctl = 0xFF00; // As _IOC_TYPE takes it.

/// What is asked of cameras while they run: of video and media devices, of memory that devices share.
constexpr std::array kAskedOfDevices{'V', '|', 'b', 'H', 'u'};

/// Cameras of which each part is a device of its own need the memory for their pictures, too.
constexpr std::array kDevices{"/dev/video*", "/dev/media*", "/dev/v4l-subdev*", "/dev/dma_heap/*",
                              "/dev/udmabuf"};

/// Of the user's own only the settings of PipeWire.
std::vector<Walls::Reachable> neededToLook()
{
    std::vector<Walls::Reachable> needed;
    for (const char *path : {"/usr", "/lib", "/lib64", "/etc", "/opt", "/proc", "/sys", "/run/udev", "/dev"})
        needed.push_back({path});
    const char *const settings = std::getenv("XDG_CONFIG_HOME");
    const char *const home = std::getenv("HOME");
    if (settings && *settings)
        needed.push_back({std::string(settings) + "/pipewire"});
    else if (home)
        needed.push_back({std::string(home) + "/.config/pipewire"});
    return needed;
}

void addDevices(std::vector<Walls::Reachable> &reachable)
{
    for (const char *pattern : kDevices) {
        glob_t found{};
        if (::glob(pattern, 0, nullptr, &found) == 0) {
            for (std::size_t i = 0; i < found.gl_pathc; ++i)
                reachable.push_back({found.gl_pathv[i], true});
        }
        ::globfree(&found);
    }
}

/// PipeWire's kind of socket and the kernel's, which tells of devices.
void allowLocalSockets(CallFilter &filter)
{
    filter.refuse(SCMP_SYS(socket), SCMP_A0(SCMP_CMP_GT, AF_NETLINK));
    for (int family = 0; family < AF_NETLINK; ++family) {
        if (family != AF_UNIX)
            filter.refuse(SCMP_SYS(socket), SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(family)));
    }
    filter.refuse(SCMP_SYS(socket), SCMP_A0(SCMP_CMP_EQ, AF_NETLINK),
                  SCMP_A2(SCMP_CMP_NE, NETLINK_KOBJECT_UEVENT));
}

} // namespace

bool CameraWalls::raiseBeforeLooking()
{
    std::vector<Walls::Reachable> stay = neededToLook();
    addDevices(stay);
    CallFilter filter(CallFilter::Others::allowed);
    filter.refuseProcesses();
    allowLocalSockets(filter);
    return Walls::limit(kMostMemory, kMostFiles) && Walls::leaveFiles(stay) && filter.load();
}

bool CameraWalls::raiseBeforePictures()
{
    CallFilter filter(CallFilter::Others::refused);
    filter.allowComputing();
    for (const int call :
         {SCMP_SYS(epoll_wait), SCMP_SYS(epoll_pwait), SCMP_SYS(epoll_ctl), SCMP_SYS(timerfd_settime),
          SCMP_SYS(timerfd_gettime), SCMP_SYS(timerfd_create), SCMP_SYS(memfd_create), SCMP_SYS(ftruncate),
          SCMP_SYS(dup), SCMP_SYS(shutdown), SCMP_SYS(nanosleep), SCMP_SYS(getrusage)})
        filter.allow(call);
    for (const char kind : kAskedOfDevices)
        filter.allow(SCMP_SYS(ioctl),
                     SCMP_A1(SCMP_CMP_MASKED_EQ, kKindOfIoctl, static_cast<scmp_datum_t>(kind) << 8U));
    return filter.load();
}

} // namespace Kestrune
