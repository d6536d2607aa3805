#pragma once

#include <cstddef>
#include <span>
#include <string>

/// What a process that reads what strangers wrote gives up: its faults are theirs to use. What is refused
/// fails with an error. Each returns whether it is so. The calls are filtered by CallFilter.
namespace Kestrune::Walls {

/// From here on it takes `mostMemory` bytes of addresses, the libraries' among them, and `mostFiles` open
/// files at the most, leaves no core behind, and gains no rights by what it starts.
bool limit(std::size_t mostMemory, std::size_t mostFiles);

/// A folder or file that stays within reach, with all below it; one that is not there is left out.
struct Reachable
{
    std::string path;
    bool isWritable = false;
};

/// From here on this thread, and those that it begins, open no other file by name. True as well on a kernel
/// without Landlock (kernel.org, userspace-api/landlock), where the filter of calls has to do.
bool leaveFiles(std::span<const Reachable> stay = {});

/// Of the reader: no file, no network, no bus, no other process or program.
bool raiseAroundReader(std::size_t mostMemory);

} // namespace Kestrune::Walls
