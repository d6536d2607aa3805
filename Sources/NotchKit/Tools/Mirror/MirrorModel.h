#pragma once

#include "Async/Scope.h"
#include "NotchKit/Platform/CameraSession.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>

namespace Kestrune {

class NotchSettings;

/// The camera as a mirror: runs while its pane is on screen and is off at all other times. Where there is no
/// camera, or no more, it is looked for again while the pane stays on screen. Main thread only.
class MirrorModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(bool running READ running NOTIFY runningChanged)
    /// What there is to choose from: the names of the default camera and of all cameras; empty until they are
    /// listed.
    Q_PROPERTY(QStringList choices READ choices NOTIFY choicesChanged)

public:
    /// What the pane shows.
    enum class State {
        Waiting, ///< For the user's permission, or until the camera has been found.
        Picture,
        NoCamera,
        NoAccess,
        Refused, ///< Some time ago, which the desktop remembers.
        Unasked, ///< Only the user can tell, who has to be asked while the notch has the keyboard.
    };
    Q_ENUM(State)

    MirrorModel(NotchSettings &settings, Clock &clock, CameraSession &session, QObject *parent = nullptr);
    ~MirrorModel() override;

    State state() const;

    /// As the last start read it.
    CameraAuthorization status() const { return m_status; }

    /// From the start that started the session until the next stop, or until the camera was lost.
    bool running() const { return m_running; }

    /// The session once found no camera. Stays; a camera that was plugged in since is shown all the same.
    bool noCamera() const { return m_noCamera; }

    /// Starts the camera, after asking for permission and looking for a camera where that is still to be
    /// done.
    void start();
    void stop();

    /// Has the user asked for the camera, whose attention the notch has.
    Q_INVOKABLE void askUser();

    QStringList choices() const;

    /// Looks which cameras there are.
    Q_INVOKABLE void listCameras();

    /// Takes the camera at that place of the choices from now on.
    Q_INVOKABLE void chooseCamera(int index);

    /// Asks for the next picture; nothing happens while one is on its way.
    void requestPicture(const PictureShape &shape) { m_session.requestPicture(shape); }

    void hubStopped() override { stop(); }
    void visibleToolChanged(std::optional<NotchTool> visible) override;

Q_SIGNALS:
    void stateChanged();
    void runningChanged();
    void pictureTaken(const QImage &picture);
    void choicesChanged();

private:
    QCoro::Task<> ask(bool mayAskUser);
    QCoro::Task<> list();
    void restart();
    void act(CameraAuthorization status);
    QCoro::Task<> configure();
    void goOn();
    void run();
    void halt();
    void takePicture(const QImage &picture);
    void takeLoss();
    void tryLater();

    NotchSettings &m_settings;
    Clock &m_clock;
    CameraSession &m_session;
    QList<CameraDevice> m_cameras;
    bool m_wanted = false; ///< Between start and stop: what is answered later takes effect.
    bool m_configured = false;
    std::size_t m_tries = 0;               ///< In vain since the start or the last picture.
    std::unique_ptr<RunningTimer> m_pause; ///< Until the next try.
    Scope m_access;
    Scope m_configuration;
    Scope m_lists;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MirrorModel, CameraAuthorization, m_status,
                                         CameraAuthorization::notDetermined, &MirrorModel::stateChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MirrorModel, bool, m_running, false, &MirrorModel::runningChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MirrorModel, bool, m_noCamera, false, &MirrorModel::stateChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MirrorModel, bool, m_unasked, false, &MirrorModel::stateChanged)
    /// The camera was lost, and neither a picture nor a start came since.
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(MirrorModel, bool, m_lost, false, &MirrorModel::stateChanged)
};

} // namespace Kestrune
