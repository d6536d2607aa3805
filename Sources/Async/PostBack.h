#pragma once

#include "Crossing.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <utility>

namespace Kestrune {

/// The way back from other threads to the one it was made on, which has an event loop. What they post is
/// carried out there in its order, and dropped once the object is gone: declare it after what that touches.
class PostBack
{
    struct Link
    {
        std::mutex mutex;
        QObject *receiver;
    };

public:
    /// What other threads hold; may outlive the object.
    class Handle
    {
    public:
        template <typename Function>
        void post(Function function) const
        {
            const std::lock_guard lock(m_link->mutex);
            if (m_link->receiver)
                QMetaObject::invokeMethod(m_link->receiver, Crossing(std::move(function)),
                                          Qt::QueuedConnection);
        }

    private:
        friend class PostBack;
        explicit Handle(std::shared_ptr<Link> link)
            : m_link(std::move(link))
        {}

        std::shared_ptr<Link> m_link;
    };

    PostBack()
        : m_link(new Link{{}, &m_receiver})
    {}
    ~PostBack()
    {
        const std::lock_guard lock(m_link->mutex);
        m_link->receiver = nullptr;
    }
    Q_DISABLE_COPY_MOVE(PostBack)

    Handle handle() const { return Handle(m_link); }

private:
    QObject m_receiver;
    std::shared_ptr<Link> m_link;
};

} // namespace Kestrune
