#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace Kestrune {

/// What the pieces of a worker's work use one after the other. A piece that hangs keeps what it has; those
/// after it get another. Copies are one bench. Any thread.
template <typename Thing>
class Bench
{
public:
    explicit Bench(std::function<std::unique_ptr<Thing>()> make)
        : m_state(std::make_shared<State>())
    {
        m_state->make = std::move(make);
    }

    /// Calls `work` with the thing, which is made when there is none that is free.
    template <typename Function>
    auto use(Function work) const
    {
        const Lease lease(*m_state);
        return work(*lease.thing);
    }

private:
    struct State
    {
        std::mutex mutex;
        std::function<std::unique_ptr<Thing>()> make;
        std::shared_ptr<Thing> thing;
        bool busy = false;
    };

    struct Lease
    {
        explicit Lease(State &all)
            : state(all)
        {
            const std::lock_guard lock(state.mutex);
            if (state.busy || !state.thing)
                state.thing = state.make();
            state.busy = true;
            thing = state.thing;
        }
        ~Lease()
        {
            const std::lock_guard lock(state.mutex);
            if (state.thing == thing)
                state.busy = false;
        }
        Lease(const Lease &) = delete;
        Lease &operator=(const Lease &) = delete;

        State &state;
        std::shared_ptr<Thing> thing;
    };

    std::shared_ptr<State> m_state;
};

} // namespace Kestrune
