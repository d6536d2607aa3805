#include "MemoryFile.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Kestrune {

MemoryFile::MemoryFile(const char *name)
    : m_descriptor(::memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING))
{}

MemoryFile::~MemoryFile()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool MemoryFile::write(const QByteArray &data) const
{
    for (qsizetype done = 0; done < data.size();) {
        const ssize_t written =
            ::write(m_descriptor, data.constData() + done, static_cast<std::size_t>(data.size() - done));
        if (written <= 0)
            return false;
        done += written;
    }
    return m_descriptor >= 0;
}

bool MemoryFile::reserve(std::size_t size) const
{
    return m_descriptor >= 0 && ::ftruncate(m_descriptor, static_cast<off_t>(size)) == 0 &&
           ::fcntl(m_descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW) == 0;
}

QByteArray MemoryFile::first(std::size_t size) const
{
    void *const memory = ::mmap(nullptr, size, PROT_READ, MAP_SHARED, m_descriptor, 0);
    if (memory == MAP_FAILED)
        return {};
    QByteArray copy(static_cast<const char *>(memory), static_cast<qsizetype>(size));
    ::munmap(memory, size);
    return copy;
}

} // namespace Kestrune
