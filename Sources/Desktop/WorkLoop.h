#pragma once

#include <QThread>

#include <memory>

namespace Kestrune {

/// A thread with an event loop for calls that can block. Started by the first use.
class WorkLoop
{
public:
    explicit WorkLoop(const QString &name)
        : m_name(name)
    {}

    /// Destroys what is below `context`. A call that hangs is not waited for: its thread is left to the end
    /// of the process.
    ~WorkLoop()
    {
        using namespace std::chrono_literals;
        if (!m_thread)
            return;
        m_thread->quit();
        if (!m_thread->wait(QDeadlineTimer(1s)))
            static_cast<void>(m_thread.release());
    }
    Q_DISABLE_COPY_MOVE(WorkLoop)

    /// An object that lives on the thread, to be the parent of others there.
    QObject *context()
    {
        if (!m_thread) {
            m_thread = std::make_unique<QThread>();
            m_thread->setObjectName(m_name);
            m_context = new QObject;
            m_context->moveToThread(m_thread.get());
            QObject::connect(m_thread.get(), &QThread::finished, m_context, &QObject::deleteLater);
            m_thread->start();
        }
        return m_context;
    }

private:
    QString m_name;
    std::unique_ptr<QThread> m_thread;
    QObject *m_context = nullptr;
};

} // namespace Kestrune
