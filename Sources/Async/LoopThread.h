#pragma once

#include "Pledge.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <map>
#include <memory>

namespace Kestrune {

/// A thread with an event loop, for objects that live on what comes in: sockets, processes, services. The
/// first use starts it. Blocking work that needs no event loop belongs to a Worker.
///
/// A loop that hangs is abandoned with all that is on it: what was asked gets the default value, and the next
/// use starts a fresh one. Once `kMostHung` hang at the same time, questions get the default value at once.
/// The end waits for nothing and answers everything with the default value. So what is carried out on the
/// thread holds all that it touches.
///
/// One thread, with an event loop of its own.
class LoopThread
{
public:
    static constexpr int kMostHung = 3;

    /// Carried out on the thread, where `parent` is the parent of all that lives there, and takes it along.
    using Task = std::function<void(QObject &parent)>;

    /// `name` is the threads', 15 characters at most.
    explicit LoopThread(const char *name);
    ~LoopThread();
    Q_DISABLE_COPY_MOVE(LoopThread)

    /// Carries out the task after those before it.
    void post(Task task);

    /// The same with a pledge, of which the task sees to it that it is given within `longest`: a loop that
    /// does not is one that hangs.
    template <typename Value, typename Function>
    QFuture<Value> ask(std::chrono::milliseconds longest, Function task)
    {
        const Pledge<Value> pledge;
        postWithin(
            longest, [pledge, task = std::move(task)](QObject &parent) { task(parent, pledge); },
            pledge.makeGiveUp());
        return pledge.future();
    }

private:
    class Loop;

    void postWithin(std::chrono::milliseconds longest, Task task, std::function<bool()> giveUp);

    const QByteArray m_name;
    std::shared_ptr<Loop> m_loop;                         ///< The present one.
    std::shared_ptr<std::atomic<int>> m_hung;             ///< Abandoned ones that have not ended.
    std::map<quint64, std::function<bool()>> m_questions; ///< What gives them up, until their deadlines.
    quint64 m_asked = 0;
    QObject m_deadlines;
};

} // namespace Kestrune
