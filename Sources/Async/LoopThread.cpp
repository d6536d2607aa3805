#include "LoopThread.h"

#include "Crossing.h"
#include "Log.h"
#include "Threads.h"

#include <QEventLoop>
#include <QTimer>

#include <deque>
#include <mutex>
#include <utility>

namespace Kestrune {

/// Shared with the thread.
class LoopThread::Loop : public std::enable_shared_from_this<Loop>
{
public:
    bool start(const QByteArray &name)
    {
        return Threads::start(name, [loop = shared_from_this()] { loop->run(); });
    }

    void post(Task task)
    {
        const std::lock_guard lock(m_mutex);
        if (m_ended)
            return;
        m_tasks.push_back(std::move(task));
        if (m_loop)
            QMetaObject::invokeMethod(m_loop, Crossing([this] { carryOut(); }), Qt::QueuedConnection);
    }

    /// Main thread. Answers what has not begun; `whenEnded` goes when the thread does.
    void end(std::shared_ptr<void> whenEnded)
    {
        std::deque<Task> dropped;
        const std::lock_guard lock(m_mutex);
        m_ended = true;
        m_whenEnded = std::move(whenEnded);
        dropped.swap(m_tasks);
        if (m_loop)
            QMetaObject::invokeMethod(m_loop, Crossing([loop = m_loop] { loop->quit(); }),
                                      Qt::QueuedConnection);
    }

private:
    void run()
    {
        QEventLoop loop;
        {
            const std::lock_guard lock(m_mutex);
            if (m_ended)
                return;
            m_loop = &loop;
        }
        carryOut();
        loop.exec();
        const std::lock_guard lock(m_mutex);
        m_loop = nullptr;
    }

    void carryOut()
    {
        while (const Task task = take())
            task(*m_loop);
    }

    Task take()
    {
        const std::lock_guard lock(m_mutex);
        if (m_tasks.empty())
            return {};
        Task task = std::move(m_tasks.front());
        m_tasks.pop_front();
        return task;
    }

    std::mutex m_mutex;
    QEventLoop *m_loop = nullptr; ///< Set and cleared on the thread.
    std::deque<Task> m_tasks;     ///< What is not carried out yet.
    bool m_ended = false;
    std::shared_ptr<void> m_whenEnded;
};

LoopThread::LoopThread(const char *name)
    : m_name(name)
    , m_hung(std::make_shared<std::atomic<int>>(0))
{}

LoopThread::~LoopThread()
{
    // First, else what the thread drops may be answered later than now.
    for (const auto &[number, giveUp] : m_questions)
        giveUp();
    if (m_loop)
        m_loop->end({});
}

void LoopThread::post(Task task)
{
    if (!m_loop) {
        auto loop = std::make_shared<Loop>();
        if (*m_hung >= kMostHung || !loop->start(m_name))
            return;
        m_loop = std::move(loop);
    }
    m_loop->post(std::move(task));
}

void LoopThread::postWithin(std::chrono::milliseconds longest, Task task, std::function<bool()> giveUp)
{
    post(std::move(task));
    const quint64 number = ++m_asked;
    m_questions.emplace(number, std::move(giveUp));
    QTimer::singleShot(longest, &m_deadlines, [this, number, loop = std::weak_ptr(m_loop)] {
        const auto question = m_questions.extract(number);
        if (!question.mapped()())
            return;
        qCWarning(asyncLog, "%s: gave up what took too long", m_name.constData());
        if (!m_loop || m_loop != loop.lock())
            return;
        ++*m_hung;
        const auto countDown = [hung = m_hung](void *) { --*hung; };
        std::exchange(m_loop, {})->end(std::shared_ptr<void>(m_hung.get(), countDown));
    });
}

} // namespace Kestrune
