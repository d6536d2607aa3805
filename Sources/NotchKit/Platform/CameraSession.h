#pragma once

#include <QFuture>
#include <QImage>
#include <QList>
#include <QSize>

#include <functional>

namespace Kestrune {

/// Whether this program may use the camera.
enum class CameraAuthorization {
    notDetermined, ///< The user has not been asked.
    restricted,    ///< A policy forbids it.
    denied,
    deniedBefore, ///< The user said no in the past, and the desktop answers for them.
    authorized,
};

/// A camera of the machine.
struct CameraDevice
{
    QString id; ///< The same whenever it is plugged in.
    QString name;

    bool operator==(const CameraDevice &) const = default;
};

/// How a picture is to be made for the place where it is shown.
struct PictureShape
{
    QSize size;        ///< In pixels. The camera's picture fills it; what hangs over is cut off.
    double radius = 0; ///< Of the corners, which are transparent; in pixels.

    bool operator==(const PictureShape &) const = default;
};

/// The machine's camera and the permission to use it. Called on the main thread; nothing here blocks.
class CameraSession
{
public:
    struct Handlers
    {
        /// A picture that was requested, flipped left to right. Its pixels may change when two more have been
        /// requested.
        std::function<void(const QImage &)> picture;

        /// The camera has gone, or gives no more pictures; called once, the session does not run any more.
        std::function<void()> lost;
    };

    virtual ~CameraSession() = default;

    /// What is called on the main thread while the session runs, never after it was stopped.
    virtual void installHandlers(Handlers handlers) = 0;

    /// What is known now.
    virtual CameraAuthorization authorization() = 0;

    /// Asks the system, and where `mayAskUser` through it the user, which may take as long as the user does.
    /// Whether it is allowed; `authorization` then tells the same, or that it is not determined where only
    /// the user could tell. Cancelling the future gives the question up.
    virtual QFuture<bool> requestAccess(bool mayAskUser) = 0;

    /// The cameras that can be used now, by name. The future always finishes.
    virtual QFuture<QList<CameraDevice>> cameras() = 0;

    /// Chooses the camera for the next `configure` and start: that of the identifier where it is there, else
    /// and for an empty one the default camera.
    virtual void choose(const QString &camera) = 0;

    /// Takes the chosen camera as the session's input; false where there is none that can be used.
    /// Cancelling the future gives it up.
    virtual QFuture<bool> configure() = 0;

    /// Start and stop the camera, one after the other in the order of the calls, on a thread of the session's
    /// own. A camera that is stopped is free for other programs.
    virtual void startRunning() = 0;
    virtual void stopRunning() = 0;

    /// Asks for the next picture. Nothing happens while one is on its way or the session does not run.
    virtual void requestPicture(const PictureShape &shape) = 0;
};

} // namespace Kestrune
