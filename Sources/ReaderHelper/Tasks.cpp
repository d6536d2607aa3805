#include "Tasks.h"

#include "Desktop/Reader/ReaderWire.h"

#include <array>
#include <cstring>
#include <utility>

#include <poll.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace Kestrune {

namespace {

void count(int clock, int seconds)
{
    itimerval end{};
    end.it_value.tv_sec = seconds;
    ::setitimer(static_cast<__itimer_which_t>(clock), &end, nullptr);
}

} // namespace

Handed::~Handed()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

int Handed::take() { return std::exchange(m_descriptor, -1); }

std::unique_ptr<Tasks::Files> Tasks::next(void *question, std::size_t size)
{
    pollfd socket{ReaderWire::kSocket, POLLIN, 0};
    if (::poll(&socket, 1, ReaderWire::kLongestIdle * 1000) <= 0)
        return nullptr;
    std::array<int, 2> files{-1, -1};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof files)> control{};
    iovec part{question, size};
    msghdr message{};
    message.msg_iov = &part;
    message.msg_iovlen = 1;
    message.msg_control = control.data();
    message.msg_controllen = control.size();
    if (::recvmsg(ReaderWire::kSocket, &message, MSG_CMSG_CLOEXEC) != static_cast<ssize_t>(size))
        return nullptr;
    const cmsghdr *const header = CMSG_FIRSTHDR(&message);
    if (!header || header->cmsg_type != SCM_RIGHTS || header->cmsg_len != CMSG_LEN(sizeof files))
        return nullptr;
    std::memcpy(files.data(), CMSG_DATA(header), sizeof files);
    return std::make_unique<Files>(files[0], files[1]);
}

void Tasks::answer(const void *answer, std::size_t size)
{
    ::send(ReaderWire::kSocket, answer, size, MSG_NOSIGNAL);
}

void Tasks::beginTime()
{
    count(ITIMER_PROF, ReaderWire::kLongestWork);
    count(ITIMER_REAL, ReaderWire::kLongest);
}

void Tasks::endTime()
{
    count(ITIMER_PROF, 0);
    count(ITIMER_REAL, 0);
}

Shared::Shared(int descriptor, std::size_t size)
    : m_size(size)
{
    void *const memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    m_data = memory == MAP_FAILED ? nullptr : static_cast<char *>(memory);
}

Shared::~Shared()
{
    if (m_data)
        ::munmap(m_data, m_size);
}

} // namespace Kestrune
