#pragma once

#include "Pledge.h"

#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <type_traits>

namespace Kestrune {

/// Blocking work of one kind, a piece after the other on a thread of that kind, which lives while there is
/// work. One kind cannot hold up another.
///
/// Work that takes longer than it may is abandoned: its future gets the default value, its thread is left to
/// itself, and what waits goes on a fresh one. Once `kMostHung` of a kind hang at the same time, all work of
/// that kind is refused, with the default value at once, until one of them comes back. The end of the worker
/// waits for nothing and answers everything with the default value. So work holds all that it touches:
/// values, and objects that it shares.
///
/// One thread, with an event loop. The futures may be watched and cancelled on any; work that was cancelled
/// before its turn is left out.
class Worker
{
public:
    static constexpr int kMostHung = 3;
    static constexpr std::size_t kMostWaiting = 256; ///< More are refused.

    enum class Order { oldestFirst, newestFirst };

    /// `name` is the threads', 15 characters at most.
    explicit Worker(const char *name, Order order = Order::oldestFirst);
    ~Worker();
    Q_DISABLE_COPY_MOVE(Worker)

    /// Carries out `work`, which may take `longest` from its turn on. An exception gives the default value.
    template <typename Function>
    QFuture<std::invoke_result_t<Function>> run(std::chrono::milliseconds longest, Function work)
    {
        const Pledge<std::invoke_result_t<Function>> pledge;
        post({longest,
              [pledge, work = std::move(work)]() mutable {
                  if (pledge.isWanted())
                      pledge.give(work());
              },
              pledge.makeGiveUp()});
        return pledge.future();
    }

private:
    struct Job
    {
        std::chrono::milliseconds longest;
        std::function<void()> work; ///< Dropped without a call, it answers all the same.
        std::function<bool()> giveUp;
    };
    class Queue;

    void post(Job job);
    void check();

    std::shared_ptr<Queue> m_queue;
    QTimer m_watch; ///< Runs while work does.
};

} // namespace Kestrune
