#include "Mailbox.h"

#include <sys/eventfd.h>
#include <unistd.h>

namespace Kestrune {

Bell::Bell()
    : m_descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{}

Bell::~Bell()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void Bell::ring() const { ::eventfd_write(m_descriptor, 1); }

void Bell::hush() const
{
    eventfd_t count = 0;
    ::eventfd_read(m_descriptor, &count);
}

} // namespace Kestrune
