#pragma once

#include <cstddef>
#include <cstdint>

/// What the program and its camera helper say to each other. The helper gets the number of a descriptor of
/// shared memory as its argument, and the identifier of a camera as another where one is wanted before
/// others, reads orders from its standard input, and writes a byte to its standard output when the picture of
/// an order is in the memory. It ends when its input does or the camera is lost.
namespace Kestrune::CameraWire {

constexpr int kSlots = 2; ///< The memory holds so many pictures, one after the other.
constexpr std::size_t kSlotBytes = 16UL * 1024 * 1024; ///< Takes no more than the pictures need.

/// One picture, in premultiplied ARGB of 32 bits a pixel in the machine's byte order, without gaps.
struct Order
{
    std::int32_t slot;
    std::int32_t width;
    std::int32_t height;
    float radius; ///< Of the transparent corners, in pixels.
};

constexpr std::size_t kPixelBytes = 4;

constexpr bool isPossible(const Order &order)
{
    return order.slot >= 0 && order.slot < kSlots && order.width > 0 && order.height > 0 &&
           static_cast<std::size_t>(order.width) <= kSlotBytes / kPixelBytes / order.height;
}

/// In place of the descriptor: only look whether there is a camera that can be used, and end with status 0.
constexpr auto kProbe = "probe";

/// In place of the descriptor: write the cameras that can be used, a line each: its identifier, a tab and its
/// name.
constexpr auto kList = "list";

} // namespace Kestrune::CameraWire
