#pragma once

#include <cstddef>

/// What a process that reads what strangers wrote gives up: its faults are theirs to use.
namespace Kestrune::Walls {

/// From here on there is no way to a file by name, to the network or the bus, to another process or program,
/// and to more addresses than `mostMemory` bytes, the libraries' among them; what is refused fails with an
/// error. Whether it is so: a kernel without Landlock (kernel.org, userspace-api/landlock) does with the
/// filter of calls.
bool raise(std::size_t mostMemory);

} // namespace Kestrune::Walls
