#pragma once

#include "Async/Pledge.h"
#include "NotchKit/Platform/CameraSession.h"

#include <QDBusConnection>
#include <QObject>
#include <QVariantMap>

#include <memory>
#include <optional>

class QDBusMessage;
class QDBusServiceWatcher;

namespace Kestrune {

/// The permission to use the camera, from the desktop's camera portal, which asks the user and remembers the
/// answer. Where there is no portal, or it knows of no camera, every program may use one. Main thread only;
/// nothing here waits.
class CameraAccess : public QObject
{
    Q_OBJECT

public:
    explicit CameraAccess(const QDBusConnection &bus);
    ~CameraAccess() override;

    /// The last answer. A refusal is told once: what the user changes in the desktop's settings only the
    /// portal knows, so the next showing asks it again, which it answers by itself.
    CameraAuthorization authorization();

    /// Asks for it. Unless `mayAskUser`, the portal is asked only where it is known to have the user's answer
    /// already. One question at a time: a second one joins the first.
    QFuture<bool> request(bool mayAskUser);

    /// The camera was turned off or not found: the next use asks again.
    void forget() { m_answer.reset(); }

private Q_SLOTS:
    void takeResponse(uint response, const QVariantMap &results);

private:
    void takePresence(const QDBusMessage &reply);
    void lookUp();
    void takeStored(const QDBusMessage &reply);
    void ask();
    void finish(CameraAuthorization answer);

    QDBusConnection m_bus;
    std::optional<CameraAuthorization> m_answer;
    std::optional<Pledge<bool>> m_question; ///< While the portal is asked.
    bool m_mayAskUser = false;
    bool m_hasRefused = false; ///< The user has, as the desktop remembers.
    QString m_request;         ///< The portal's object for the question.
    std::unique_ptr<QDBusServiceWatcher> m_watcher;
};

} // namespace Kestrune
