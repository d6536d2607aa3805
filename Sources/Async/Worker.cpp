#include "Worker.h"

#include "Log.h"
#include "Threads.h"

#include <deque>
#include <exception>
#include <mutex>
#include <optional>

namespace Kestrune {

using namespace std::chrono_literals;

/// Shared with the threads. What is dropped is destroyed without the lock: its captures may do anything.
class Worker::Queue : public std::enable_shared_from_this<Queue>
{
public:
    Queue(const char *name, Order order)
        : m_name(name)
        , m_order(order)
    {}

    void post(Job job)
    {
        Jobs refused;
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back(std::move(job));
        if (m_waiting.size() > kMostWaiting)
            refuse(m_order == Order::newestFirst ? m_waiting.begin() : std::prev(m_waiting.end()), refused);
        serve(refused);
    }

    /// Abandons what has taken too long. When to look again; nothing while there is no work.
    std::optional<std::chrono::milliseconds> check()
    {
        Jobs refused;
        std::unique_lock lock(m_mutex);
        if (m_present && Clock::now() >= m_present->deadline) {
            const auto giveUp = std::move(m_present->giveUp);
            m_present.reset();
            m_serving = false;
            ++m_hung;
            serve(refused);
            lock.unlock();
            qCWarning(asyncLog, "%s: gave up what took too long", m_name.constData());
            giveUp();
            lock.lock();
        }
        if (m_present)
            return std::chrono::ceil<std::chrono::milliseconds>(m_present->deadline - Clock::now());
        return m_waiting.empty() ? std::nullopt : std::optional(m_waiting.front().longest);
    }

    void close()
    {
        Jobs dropped;
        std::unique_lock lock(m_mutex);
        m_closed = true;
        dropped.swap(m_waiting);
        const auto giveUp = m_present ? m_present->giveUp : nullptr;
        lock.unlock();
        if (giveUp)
            giveUp();
    }

private:
    using Clock = std::chrono::steady_clock;
    using Jobs = std::deque<Job>;

    /// What a thread does now.
    struct Present
    {
        qint64 number;
        Clock::time_point deadline;
        std::function<bool()> giveUp;
    };

    void refuse(const Jobs::iterator &job, Jobs &refused)
    {
        refused.push_back(std::move(*job));
        m_waiting.erase(job);
    }

    /// Sees to it that what waits has a thread, or refuses it.
    void serve(Jobs &refused)
    {
        if (m_waiting.empty() || m_serving)
            return;
        m_serving = !m_closed && m_hung < kMostHung &&
                    Threads::start(m_name, [queue = shared_from_this()] { queue->work(); });
        if (m_serving)
            return;
        qCInfo(asyncLog, "%s: refused what waited; %d pieces hang", m_name.constData(), m_hung);
        refused.swap(m_waiting);
    }

    /// On the thread.
    void work()
    {
        while (const auto job = next()) {
            try {
                job->second.work();
            } catch (const std::exception &fault) {
                qCWarning(asyncLog, "%s: %s", m_name.constData(), fault.what());
            }
            if (!finish(job->first))
                return;
        }
    }

    std::optional<std::pair<qint64, Job>> next()
    {
        const std::lock_guard lock(m_mutex);
        m_serving = !m_waiting.empty();
        if (!m_serving)
            return std::nullopt;
        const auto first = m_order == Order::newestFirst ? std::prev(m_waiting.end()) : m_waiting.begin();
        std::pair job(++m_number, std::move(*first));
        m_waiting.erase(first);
        m_present = {job.first, Clock::now() + job.second.longest, job.second.giveUp};
        return job;
    }

    /// Whether the thread was not abandoned meanwhile.
    bool finish(qint64 number)
    {
        const std::lock_guard lock(m_mutex);
        const bool isPresent = m_present && m_present->number == number;
        if (isPresent) {
            m_present.reset();
        } else {
            --m_hung;
            qCInfo(asyncLog, "%s: what was given up has ended", m_name.constData());
        }
        return isPresent;
    }

    const QByteArray m_name;
    const Order m_order;
    std::mutex m_mutex;
    Jobs m_waiting;
    std::optional<Present> m_present;
    qint64 m_number = 0; ///< Pieces of work begun so far.
    int m_hung = 0;
    bool m_serving = false; ///< A thread that was not abandoned works, or begins to.
    bool m_closed = false;
};

Worker::Worker(const char *name, Order order)
    : m_queue(std::make_shared<Queue>(name, order))
{
    m_watch.setSingleShot(true);
    m_watch.callOnTimeout([this] { check(); });
}

Worker::~Worker() { m_queue->close(); }

void Worker::post(Job job)
{
    const auto longest = job.longest;
    m_queue->post(std::move(job));
    if (!m_watch.isActive() || m_watch.remainingTimeAsDuration() > longest)
        m_watch.start(longest);
}

void Worker::check()
{
    if (const auto next = m_queue->check())
        m_watch.start(std::max(*next, 1ms));
}

} // namespace Kestrune
