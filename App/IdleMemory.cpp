#include "IdleMemory.h"

#include "NotchKit/NotchServices.h"

#include <chrono>
#include <cstddef>
#include <span>

#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Kestrune {

namespace {

using namespace std::chrono_literals;

constexpr auto kUntilIdle = 10s; // What closes, and what ends with it, is over.

/// Where `address`, as `file` has it, is in memory.
template <typename T = std::byte>
T *loaded(const dl_phdr_info &file, ElfW(Addr) address)
{
    const ElfW(Addr) place = file.dlpi_addr + address;
    return reinterpret_cast<T *>(place); // NOLINT(performance-no-int-to-ptr): so the loader tells it.
}

/// Whether the loader wrote addresses into the code of `file`.
bool isCodeChanged(const dl_phdr_info &file)
{
    for (const auto &segment : std::span(file.dlpi_phdr, file.dlpi_phnum)) {
        if (segment.p_type != PT_DYNAMIC)
            continue;
        for (auto *entry = loaded<const ElfW(Dyn)>(file, segment.p_vaddr); entry->d_tag != DT_NULL; ++entry) {
            if (entry->d_tag == DT_TEXTREL ||
                (entry->d_tag == DT_FLAGS && (entry->d_un.d_val & DF_TEXTREL) != 0))
                return true;
        }
    }
    return false;
}

/// Of the segments that nobody writes into: what is dropped is read from the file again.
int releaseConstantSegments(dl_phdr_info *file, std::size_t, void *)
{
    static const auto pages = ~(static_cast<ElfW(Addr)>(sysconf(_SC_PAGESIZE)) - 1);
    if (isCodeChanged(*file))
        return 0;
    for (const auto &segment : std::span(file->dlpi_phdr, file->dlpi_phnum)) {
        const ElfW(Addr) begin = segment.p_vaddr & pages;
        const ElfW(Addr) end = (segment.p_vaddr + segment.p_filesz) & pages;
        if (segment.p_type == PT_LOAD && (segment.p_flags & PF_W) == 0 && end > begin)
            madvise(loaded(*file, begin), end - begin, MADV_DONTNEED);
    }
    return 0;
}

} // namespace

IdleMemory::IdleMemory(NotchServices &services)
    : m_services(services)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(kUntilIdle);
    m_timer.callOnTimeout([] {
        malloc_trim(0);
        dl_iterate_phdr(releaseConstantSegments, nullptr);
    });
    QObject::connect(&services, &NotchServices::anyExpandedChanged, &m_timer, [this] {
        if (m_services.anyExpanded())
            m_timer.stop();
        else
            m_timer.start();
    });
    m_timer.start();
}

} // namespace Kestrune
