#include "PendingCalls.h"

#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QTimer>

#include <memory>
#include <vector>

namespace Kestrune {

void PendingCalls::await(const QList<QDBusPendingCall> &calls, std::chrono::milliseconds longest)
{
    awaitMost(calls, longest, longest);
}

void PendingCalls::awaitMost(const QList<QDBusPendingCall> &calls, std::chrono::milliseconds longest,
                             std::chrono::milliseconds patience)
{
    if (calls.isEmpty())
        return;
    QEventLoop loop;
    QTimer rest;
    rest.setSingleShot(true);
    QObject::connect(&rest, &QTimer::timeout, &loop, &QEventLoop::quit);
    qsizetype open = calls.size();
    std::vector<std::unique_ptr<QDBusPendingCallWatcher>> watchers;
    for (const QDBusPendingCall &call : calls) {
        watchers.push_back(std::make_unique<QDBusPendingCallWatcher>(call));
        QObject::connect(watchers.back().get(), &QDBusPendingCallWatcher::finished, &loop, [&] {
            if (--open == 0)
                loop.quit();
            else if (!rest.isActive())
                rest.start(patience);
        });
    }
    QTimer::singleShot(longest, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace Kestrune
