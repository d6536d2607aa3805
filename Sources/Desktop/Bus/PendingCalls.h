#pragma once

#include <QDBusPendingCall>
#include <QList>

#include <chrono>

/// Waiting for calls on a thread whose event loop nobody else runs.
namespace Kestrune::PendingCalls {

/// Until all calls have been answered, or `longest` has passed.
void await(const QList<QDBusPendingCall> &calls, std::chrono::milliseconds longest);

/// The same, and not longer than `patience` after the first answer: a service that takes its time to start
/// keeps all of them waiting, one that is slow by itself only itself.
void awaitMost(const QList<QDBusPendingCall> &calls, std::chrono::milliseconds longest,
               std::chrono::milliseconds patience);

} // namespace Kestrune::PendingCalls
