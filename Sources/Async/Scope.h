#pragma once

#include <QFutureWatcher>

#include <QCoroTask>

#include <coroutine>
#include <functional>
#include <list>
#include <memory>
#include <utility>

namespace Kestrune {

/// Thrown into a flow that waits when its scope ends, so that it unwinds. Flows let it pass.
struct FlowEnded
{};

/// What the flows of a scope have in common from one end of it to the next.
class FlowLife
{
public:
    /// A place where a flow waits.
    class Wait
    {
    public:
        Wait();
        virtual ~Wait() = default;

    protected:
        Wait(Wait &&) = default; ///< Before it waits.

        bool isEnded() const { return m_life->m_ended; }
        void suspend(std::coroutine_handle<> flow);
        /// Last: the wait may be gone when this returns.
        void resume();

    private:
        friend class FlowLife;
        virtual void giveUp() = 0;

        std::shared_ptr<FlowLife> m_life;
        std::coroutine_handle<> m_flow;
        std::list<Wait *>::iterator m_place;
    };

    /// The flow that runs on this thread is of that life until the object's end.
    class Running
    {
    public:
        explicit Running(std::shared_ptr<FlowLife> life);
        ~Running();
        Q_DISABLE_COPY_MOVE(Running)

    private:
        std::shared_ptr<FlowLife> m_before;
    };

    bool isWaiting() const { return !m_waits.empty(); }

    /// Resumes every flow that waits, to unwind; one that runs now unwinds at its next wait.
    void end();

private:
    std::list<Wait *> m_waits;
    bool m_ended = false;
};

/// Flows that end with their owner. A flow is a coroutine that returns QCoro::Task<>; it may wait for futures
/// with `until`, and for other coroutines that do.
///
/// When the scope ends, each flow in it unwinds where it waits: its locals are destroyed, nothing after that
/// is carried out, and what it waited for is cancelled, which ports take for giving up. Declare it as the
/// last member, so that it goes first. A flow whose own step ends the scope runs on to its next wait or its
/// end; one whose own step destroys the owner has to return then. Any other exception that leaves a flow ends
/// the program, as one that leaves a slot does.
///
/// A flow's parameters are its own copies; a lambda's captures are not, so a flow is a function, never a
/// lambda that captures. Of what lives across a wait, everything has a name: g++ 12 may destroy a temporary
/// there twice.
///
/// One thread, with an event loop.
class Scope
{
public:
    Scope() = default;
    ~Scope() { m_life->end(); }
    Q_DISABLE_COPY_MOVE(Scope)

    /// Carries out the flow up to its first wait, then the rest from the event loop.
    template <typename Flow, typename... Arguments>
    void start(Flow &&flow, Arguments &&...arguments)
    {
        const FlowLife::Running running(m_life);
        see(std::invoke(std::forward<Flow>(flow), std::forward<Arguments>(arguments)...));
    }

    /// The same in place of all flows before: the newest question wins.
    template <typename Flow, typename... Arguments>
    void restart(Flow &&flow, Arguments &&...arguments)
    {
        end();
        start(std::forward<Flow>(flow), std::forward<Arguments>(arguments)...);
    }

    /// Ends all flows; others can be started afterwards.
    void end();

    /// Whether a flow waits for anything.
    bool isWaiting() const { return m_life->isWaiting(); }

private:
    static QCoro::Task<> see(QCoro::Task<> flow);

    std::shared_ptr<FlowLife> m_life = std::make_shared<FlowLife>();
};

/// What `until` gives to co_await.
template <typename Value>
class FutureWait final : private FlowLife::Wait
{
public:
    explicit FutureWait(const QFuture<Value> &future)
        : m_future(future)
    {}
    FutureWait(FutureWait &&) noexcept = default;

    /// A finished future is waited for too: whether a thread was quick changes nothing in what the flow's
    /// caller sees.
    bool await_ready() const { return isEnded(); }

    void await_suspend(std::coroutine_handle<> flow)
    {
        suspend(flow);
        m_watcher = std::make_unique<QFutureWatcher<Value>>();
        QObject::connect(m_watcher.get(), &QFutureWatcherBase::finished, m_watcher.get(), [this] {
            m_watcher.release()->deleteLater(); // It is what calls.
            resume();
        });
        m_watcher->setFuture(m_future);
    }

    Value await_resume()
    {
        if (isEnded()) {
            m_future.cancel();
            throw FlowEnded();
        }
        return m_future.isCanceled() || m_future.resultCount() == 0 ? Value() : m_future.result();
    }

private:
    void giveUp() override
    {
        m_watcher.reset();
        resume();
    }

    QFuture<Value> m_future;
    std::unique_ptr<QFutureWatcher<Value>> m_watcher; ///< While it waits.
};

/// In a flow: `const Reply reply = co_await until(asked);`. Gives the future's result from the event loop, or
/// the default value when the future was cancelled or ends without one.
template <typename Value>
FutureWait<Value> until(const QFuture<Value> &future)
{
    return FutureWait<Value>(future);
}

/// The future needs a name: see Scope.
template <typename Value>
FutureWait<Value> until(QFuture<Value> &&future) = delete;

} // namespace Kestrune
