#pragma once

#include <QFuture>
#include <QFutureWatcher>

#include <functional>

namespace Kestrune {

/// Waits for one future on the thread that it was made on, and gives it up (cancels it) when destroyed; that
/// may happen inside the handler too. A future that was cancelled from elsewhere gives a default value.
template <typename Value>
class Answer
{
public:
    using Handler = std::function<void(const Value &)>;

    Answer(const QFuture<Value> &future, Handler handler)
        : m_watcher(new QFutureWatcher<Value>)
    {
        QObject::connect(m_watcher, &QFutureWatcherBase::finished, m_watcher,
                         [watcher = m_watcher, handler = std::move(handler)] {
                             handler(watcher->isCanceled() ? Value() : watcher->result());
                         });
        m_watcher->setFuture(future);
    }
    ~Answer()
    {
        m_watcher->disconnect();
        m_watcher->cancel();
        m_watcher->deleteLater();
    }
    Q_DISABLE_COPY_MOVE(Answer)

private:
    QFutureWatcher<Value> *m_watcher;
};

} // namespace Kestrune
