#include "Threads.h"

#include "Log.h"

#include <condition_variable>
#include <cstring>
#include <memory>
#include <mutex>

#include <pthread.h>

namespace Kestrune {

Q_LOGGING_CATEGORY(asyncLog, "kestrune.async", QtWarningMsg)

namespace {

struct Start
{
    QByteArray name;
    std::function<void()> work;
};

/// Never destroyed: a thread may outlive everything.
struct Register
{
    std::mutex mutex;
    std::condition_variable ended;
    int running = 0;

    static Register &instance()
    {
        static auto *const all = new Register;
        return *all;
    }

    void add(int count)
    {
        const std::lock_guard lock(mutex);
        running += count;
        ended.notify_all();
    }
};

void *carryOut(void *argument)
{
    {
        const std::unique_ptr<Start> start(static_cast<Start *>(argument));
        pthread_setname_np(pthread_self(), start->name.constData());
        start->work();
    }
    Register::instance().add(-1);
    return nullptr;
}

} // namespace

bool Threads::start(const QByteArray &name, std::function<void()> work, std::size_t stack)
{
    auto start = std::make_unique<Start>(Start{name, std::move(work)});
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
    pthread_attr_setstacksize(&attributes, stack);
    Register::instance().add(1);
    pthread_t thread{};
    const int fault = pthread_create(&thread, &attributes, carryOut, start.get());
    const bool started = fault == 0;
    pthread_attr_destroy(&attributes);
    if (started) {
        static_cast<void>(start.release()); // The thread's.
    } else {
        Register::instance().add(-1);
        qCWarning(asyncLog, "%s: no thread can be started: %s", start->name.constData(),
                  std::strerror(fault));
    }
    return started;
}

bool Threads::waitForAll(std::chrono::milliseconds longest)
{
    Register &all = Register::instance();
    std::unique_lock lock(all.mutex);
    return all.ended.wait_for(lock, longest, [&] { return all.running == 0; });
}

} // namespace Kestrune
