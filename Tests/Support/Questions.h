#pragma once

#include <QPromise>

#include <vector>

namespace Kestrune::Fakes {

/// The futures that a fake has given out, in their order; answered when the test does.
template <typename Value>
struct Questions
{
    QFuture<Value> ask()
    {
        m_promises.emplace_back().start();
        return m_promises.back().future();
    }

    void answer(std::size_t index, const Value &value)
    {
        m_promises.at(index).addResult(value);
        m_promises.at(index).finish();
    }
    void answerLast(const Value &value) { answer(count() - 1, value); }

    /// Those who waited for it want it no more.
    bool isGivenUp(std::size_t index) const { return m_promises.at(index).isCanceled(); }

    bool isAnswered(std::size_t index) const { return m_promises.at(index).future().isFinished(); }

    std::size_t count() const { return m_promises.size(); }

private:
    std::vector<QPromise<Value>> m_promises;
};

} // namespace Kestrune::Fakes
