#pragma once

#include "Async/LoopThread.h"
#include "Async/PostBack.h"
#include "CameraAccess.h"
#include "CameraWire.h"
#include "NotchKit/Platform/CameraSession.h"

#include <QObject>

namespace Kestrune {

/// The camera through a helper process, which runs from a start to a stop only: what it takes of memory and
/// threads is gone with it. The helper is started and ended on a thread of its own, which the first use
/// starts.
class HelperCamera : public QObject, public CameraSession
{
    Q_OBJECT

public:
    /// `helper` is the helper's file, the installed one by default.
    explicit HelperCamera(const QDBusConnection &bus, const QString &helper = installed());
    ~HelperCamera() override;

    /// The helper beside the program in a build tree, else where it is installed.
    static QString installed();

    void installHandlers(Handlers handlers) override { m_handlers = std::move(handlers); }
    CameraAuthorization authorization() override { return m_access.authorization(); }
    QFuture<bool> requestAccess(bool mayAskUser) override { return m_access.request(mayAskUser); }
    QFuture<QList<CameraDevice>> cameras() override;
    void choose(const QString &camera) override { m_chosen = camera; }
    QFuture<bool> configure() override;
    void startRunning() override;
    void stopRunning() override;
    void requestPicture(const PictureShape &shape) override;

private:
    void take(quint64 run, const QImage &picture);
    void lose(quint64 run);
    bool isCurrent(quint64 run) const { return m_running && run == m_runs; }

    const QString m_helper;
    CameraAccess m_access;
    Handlers m_handlers;
    QString m_chosen;   ///< The identifier of the wanted camera.
    quint64 m_runs = 0; ///< Starts so far: the number of the present run.
    bool m_running = false;
    bool m_ordered = false; ///< A picture is on its way.
    int m_slot = 0;
    LoopThread m_loop{"camera"};
    PostBack m_back;
};

} // namespace Kestrune
