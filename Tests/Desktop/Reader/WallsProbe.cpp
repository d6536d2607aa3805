// Raises the walls of a helper, tries one thing, and ends with 0 where it was refused, with 1 where it
// worked.
#include "CameraHelper/CameraWalls.h"
#include "Walls/Walls.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

bool opens(const char *path, int how)
{
    const int file = ::open(path, how, 0600);
    return file >= 0 && ::close(file) == 0;
}

bool forks()
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    return child > 0 && ::waitpid(child, nullptr, 0) == child;
}

bool executes()
{
    std::array<char *, 1> none{};
    ::execve("/bin/true", none.data(), none.data());
    return false;
}

/// As one that runs already would see it: the error of a call that may work is another one.
bool mayExecute() { return executes() || errno != EPERM; }

bool maps(std::size_t size, int protection)
{
    return ::mmap(nullptr, size, protection, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0) !=
           MAP_FAILED;
}

bool raise(const std::string &walls)
{
    using namespace Kestrune;
    if (walls == "reader")
        return Walls::raiseAroundReader(std::size_t{1} << 30);
    return CameraWalls::raiseBeforeLooking() && (walls == "look" || CameraWalls::raiseBeforePictures());
}

} // namespace

int main(int, char *arguments[])
{
    const std::map<std::string, bool (*)()> tries{
        {"read", [] { return opens("/etc/hostname", O_RDONLY); }},
        {"read of the user's", [] { return opens(std::getenv("HOME"), O_RDONLY); }},
        {"write", [] { return opens("/tmp/kestrune-walls", O_WRONLY | O_CREAT); }},
        {"connect", [] { return ::socket(AF_INET6, SOCK_STREAM, 0) >= 0; }},
        {"bus", [] { return ::socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
        {"fork", forks},
        {"execute", mayExecute},
        {"allocate", [] { return maps(std::size_t{5} << 30, PROT_READ | PROT_WRITE); }},
        {"make code", [] { return maps(4096, PROT_READ | PROT_EXEC); }},
        {"compute", [] { return maps(4096, PROT_READ | PROT_WRITE); }},
    };
    const auto wanted = tries.at(arguments[2]);
    return raise(arguments[1]) && !wanted() ? EXIT_SUCCESS : EXIT_FAILURE;
}
