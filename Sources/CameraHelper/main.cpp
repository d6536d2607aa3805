#include "Camera.h"
#include "CameraWalls.h"
#include "Desktop/Camera/CameraWire.h"
#include "PictureMaker.h"

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

#include <poll.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace Kestrune;
using CameraWire::Order;

/// The next order; nothing when there will be no more.
std::optional<Order> readOrder()
{
    Order order{};
    std::size_t size = 0;
    while (size < sizeof order) {
        const ssize_t got =
            ::read(STDIN_FILENO, reinterpret_cast<char *>(&order) + size, sizeof order - size);
        if (got <= 0)
            return {};
        size += static_cast<std::size_t>(got);
    }
    return CameraWire::isPossible(order) ? std::optional(order) : std::nullopt;
}

constexpr unsigned kLongestOpening = 15; // s; what hangs for longer, PipeWire or a driver, hangs for good.

bool hasInputEnded()
{
    pollfd input{STDIN_FILENO, 0, 0};
    return ::poll(&input, 1, 0) > 0 && (input.revents & (POLLHUP | POLLERR)) != 0;
}

bool say(const std::string &text)
{
    return ::write(STDOUT_FILENO, text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

bool show(Camera &camera, int descriptor)
{
    void *const memory = ::mmap(nullptr, CameraWire::kSlots * CameraWire::kSlotBytes, PROT_READ | PROT_WRITE,
                                MAP_SHARED, descriptor, 0);
    if (memory == MAP_FAILED || !camera.start())
        return false;
    ::alarm(0);
    PictureMaker maker;
    while (const auto order = readOrder()) {
        const Handle<GstSample> sample = camera.next(hasInputEnded);
        void *const slot = static_cast<char *>(memory) + order->slot * CameraWire::kSlotBytes;
        if (!sample || !maker.make(sample.get(), *order, static_cast<std::uint32_t *>(slot)))
            return false;
        if (::write(STDOUT_FILENO, "p", 1) != 1)
            return false;
    }
    return true;
}

} // namespace

/// The camera in a process of its own: the libraries for it take much memory and many threads, and a fault in
/// them ends no more than the mirror. See CameraWire.h.
int main(int argc, char *argv[])
{
    if (argc < 2 || argc > 3)
        return EXIT_FAILURE;
    // Pictures are converted without code that is made while it runs; neither bus is of use to it.
    ::setenv("ORC_CODE", "backup", 1);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
    ::setenv("DBUS_SYSTEM_BUS_ADDRESS", "disabled:", 1);
    gst_init(nullptr, nullptr);
    if (!CameraWalls::raiseBeforeLooking())
        return EXIT_FAILURE;
    ::alarm(kLongestOpening); // Its signal ends the process.
    Camera camera;
    if (std::strcmp(argv[1], CameraWire::kList) == 0)
        std::_Exit(say(camera.list()) ? EXIT_SUCCESS : EXIT_FAILURE);
    bool good = camera.open(argc == 3 ? argv[2] : "");
    if (good && std::strcmp(argv[1], CameraWire::kProbe) != 0)
        good = show(camera, std::atoi(argv[1]));
    // The kernel takes the camera back faster and more surely than an orderly end, which can hang.
    std::_Exit(good ? EXIT_SUCCESS : EXIT_FAILURE);
}
