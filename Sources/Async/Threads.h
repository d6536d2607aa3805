#pragma once

#include <QByteArray>

#include <chrono>
#include <functional>

namespace Kestrune {

/// Threads that nobody joins: each holds what it needs and ends by itself, or hangs to the end of the
/// process. Any thread.
namespace Threads {

constexpr std::size_t kStack = std::size_t{1024} * 1024; ///< Bytes; only what is used takes memory.

/// Carries out `work` on a new thread of that name (15 characters at most). False when there can be none.
bool start(const QByteArray &name, std::function<void()> work, std::size_t stack = kStack);

/// Waits until all of them have ended, but no longer than that. Whether they have.
bool waitForAll(std::chrono::milliseconds longest);

} // namespace Threads

} // namespace Kestrune
