#pragma once

#include <QFutureWatcher>
#include <QPromise>

#include <atomic>
#include <functional>
#include <memory>

namespace Kestrune {

/// The giving side of a future that always finishes with a result: the first one given counts, and when the
/// last copy goes without one, the future gets the default value. Copies are one pledge. Any thread.
template <typename Value>
class Pledge
{
public:
    Pledge()
        : m_state(std::make_shared<State>())
    {}

    QFuture<Value> future() const { return m_state->promise.future(); }

    /// Nobody has given it, and nobody who waits has given it up.
    bool isWanted() const { return !m_state->given && !m_state->promise.isCanceled(); }

    void give(Value value) const { m_state->give(std::move(value)); }

    /// Calls `handler` on this thread once the future is given up, unless `context` has gone before.
    template <typename Handler>
    void whenGivenUp(QObject *context, Handler handler) const
    {
        auto *watcher = new QFutureWatcher<Value>(context);
        QObject::connect(watcher, &QFutureWatcherBase::canceled, context, std::move(handler));
        watcher->setFuture(future());
    }

    /// Something that gives the default value in time to come, without holding the result until then.
    std::function<bool()> makeGiveUp() const
    {
        return [state = std::weak_ptr(m_state)] {
            const auto held = state.lock();
            return held && held->give(Value());
        };
    }

private:
    struct State
    {
        State() { promise.start(); }
        ~State() { give(Value()); }
        Q_DISABLE_COPY_MOVE(State)

        bool give(Value value)
        {
            if (given.exchange(true))
                return false;
            promise.addResult(std::move(value));
            promise.finish();
            return true;
        }

        QPromise<Value> promise;
        std::atomic<bool> given = false;
    };

    std::shared_ptr<State> m_state;
};

/// A future that has its result already.
template <typename Value>
QFuture<Value> answered(Value value)
{
    const Pledge<Value> pledge;
    pledge.give(std::move(value));
    return pledge.future();
}

} // namespace Kestrune
