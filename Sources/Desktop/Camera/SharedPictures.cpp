#include "SharedPictures.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

namespace Kestrune {

namespace {

constexpr std::size_t kSize = CameraWire::kSlots * CameraWire::kSlotBytes;

}

std::shared_ptr<SharedPictures> SharedPictures::create()
{
    const int descriptor = ::memfd_create("pictures", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (descriptor < 0)
        return {};
    // The helper must not be able to take memory away that is being drawn from.
    void *const memory = ::ftruncate(descriptor, kSize) == 0 &&
                                 ::fcntl(descriptor, F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW) == 0
                             ? ::mmap(nullptr, kSize, PROT_READ, MAP_SHARED, descriptor, 0)
                             : MAP_FAILED;
    if (memory == MAP_FAILED) {
        ::close(descriptor);
        return {};
    }
    return std::shared_ptr<SharedPictures>(new SharedPictures(descriptor, memory));
}

SharedPictures::~SharedPictures()
{
    ::munmap(m_memory, kSize);
    ::close(m_descriptor);
}

QImage SharedPictures::picture(const CameraWire::Order &order)
{
    using Keeper = std::shared_ptr<SharedPictures>;
    const auto *const pixels =
        static_cast<const uchar *>(m_memory) + static_cast<std::size_t>(order.slot) * CameraWire::kSlotBytes;
    return {pixels,
            order.width,
            order.height,
            static_cast<qsizetype>(order.width) * static_cast<qsizetype>(CameraWire::kPixelBytes),
            QImage::Format_ARGB32_Premultiplied,
            [](void *keeper) { delete static_cast<Keeper *>(keeper); },
            new Keeper(shared_from_this())};
}

} // namespace Kestrune
