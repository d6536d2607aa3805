#include "Scope.h"

#include <exception>

namespace Kestrune {

namespace {

/// Of the flow that runs on this thread.
std::shared_ptr<FlowLife> &currentLife()
{
    thread_local std::shared_ptr<FlowLife> life;
    return life;
}

} // namespace

FlowLife::Running::Running(std::shared_ptr<FlowLife> life)
    : m_before(std::exchange(currentLife(), std::move(life)))
{}

FlowLife::Running::~Running() { currentLife() = std::move(m_before); }

FlowLife::Wait::Wait()
    : m_life(currentLife())
{
    if (!m_life)
        qFatal("a flow waits that was not started in a scope");
}

void FlowLife::Wait::suspend(std::coroutine_handle<> flow)
{
    m_flow = flow;
    m_place = m_life->m_waits.insert(m_life->m_waits.end(), this);
}

void FlowLife::Wait::resume()
{
    m_life->m_waits.erase(m_place);
    const Running running(m_life);
    m_flow.resume();
}

void FlowLife::end()
{
    m_ended = true;
    while (!m_waits.empty())
        m_waits.front()->giveUp();
}

void Scope::end() { std::exchange(m_life, std::make_shared<FlowLife>())->end(); }

QCoro::Task<> Scope::see(QCoro::Task<> flow)
{
    try {
        co_await flow;
    } catch (const FlowEnded &) {
        co_return;
    } catch (...) {
        std::terminate();
    }
}

} // namespace Kestrune
