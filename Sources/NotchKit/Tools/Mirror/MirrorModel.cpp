#include "MirrorModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/NotchStrings.h"

#include <algorithm>
#include <array>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr std::array<std::chrono::milliseconds, 3> kPauses{1s, 2s, 5s}; ///< Before each try; the last stays.

}

MirrorModel::MirrorModel(NotchSettings &settings, Clock &clock, CameraSession &session, QObject *parent)
    : ToolModel(NotchTool::mirror, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_session(session)
    , m_status(session.authorization())
{
    m_session.installHandlers(
        {[this](const QImage &picture) { takePicture(picture); }, [this] { takeLoss(); }});
    connect(this, &MirrorModel::runningChanged, this, &MirrorModel::stateChanged);
    m_session.choose(settings.mirrorCamera());
    connect(&settings, &NotchSettings::mirrorCameraChanged, this, &MirrorModel::restart);
}

MirrorModel::~MirrorModel()
{
    stop();
    m_session.installHandlers({});
}

MirrorModel::State MirrorModel::state() const
{
    if (m_status == CameraAuthorization::denied || m_status == CameraAuthorization::restricted)
        return State::NoAccess;
    if (m_status == CameraAuthorization::deniedBefore)
        return State::Refused;
    if (m_unasked)
        return State::Unasked;
    if (m_lost)
        return State::NoCamera;
    if (m_running)
        return State::Picture;
    return m_noCamera ? State::NoCamera : State::Waiting;
}

void MirrorModel::start()
{
    m_wanted = true;
    m_tries = 0;
    m_lost = false;
    m_unasked = false;
    goOn();
}

void MirrorModel::goOn()
{
    m_pause.reset();
    act(m_session.authorization());
}

void MirrorModel::act(CameraAuthorization status)
{
    m_status = status;
    switch (status) {
    case CameraAuthorization::notDetermined:
        if (!m_access.isWaiting())
            m_access.start(&MirrorModel::ask, this, false);
        break;
    case CameraAuthorization::restricted:
    case CameraAuthorization::denied:
    case CameraAuthorization::deniedBefore:
        break;
    case CameraAuthorization::authorized:
        if (m_configured)
            run();
        else if (!m_configuration.isWaiting())
            m_configuration.start(&MirrorModel::configure, this);
        break;
    }
}

QCoro::Task<> MirrorModel::ask(bool mayAskUser)
{
    const QFuture<bool> asked = m_session.requestAccess(mayAskUser);
    const bool allowed = co_await until(asked);
    if (!m_wanted)
        co_return;
    const CameraAuthorization status = m_session.authorization();
    m_unasked = !allowed && status == CameraAuthorization::notDetermined;
    if (!m_unasked)
        act(status);
}

void MirrorModel::askUser()
{
    if (m_unasked && m_wanted && !m_access.isWaiting())
        m_access.start(&MirrorModel::ask, this, true);
}

QStringList MirrorModel::choices() const
{
    if (m_cameras.isEmpty())
        return {};
    //: The first of the cameras to choose from: whichever the desktop takes.
    QStringList names{notchStrings(QT_TRANSLATE_NOOP("notch", "Default Camera"))};
    for (const CameraDevice &camera : m_cameras)
        names.append(camera.name);
    return names;
}

void MirrorModel::listCameras()
{
    if (!m_lists.isWaiting())
        m_lists.start(&MirrorModel::list, this);
}

QCoro::Task<> MirrorModel::list()
{
    const QFuture<QList<CameraDevice>> asked = m_session.cameras();
    m_cameras = co_await until(asked);
    Q_EMIT choicesChanged();
}

void MirrorModel::chooseCamera(int index) { m_settings.setMirrorCamera(m_cameras.value(index - 1).id); }

/// Another camera was chosen.
void MirrorModel::restart()
{
    m_session.choose(m_settings.mirrorCamera());
    m_configuration.end();
    m_configured = false;
    halt();
    if (m_wanted)
        goOn();
}

QCoro::Task<> MirrorModel::configure()
{
    const QFuture<bool> asked = m_session.configure();
    m_configured = co_await until(asked);
    if (m_configured)
        run();
    else {
        m_noCamera = true;
        tryLater();
    }
}

void MirrorModel::run()
{
    if (m_running)
        return;
    m_session.startRunning(); // first: who sees it running asks for a picture
    m_running = true;
}

/// A question that the user has not answered yet stays: the next start would only ask it again.
void MirrorModel::stop()
{
    m_wanted = false;
    m_pause.reset();
    m_configuration.end();
    halt();
}

void MirrorModel::halt()
{
    if (!m_running)
        return;
    m_running = false;
    m_session.stopRunning();
}

void MirrorModel::takePicture(const QImage &picture)
{
    m_tries = 0;
    m_lost = false;
    Q_EMIT pictureTaken(picture);
}

void MirrorModel::takeLoss()
{
    m_lost = true;
    halt();
    tryLater();
}

void MirrorModel::tryLater()
{
    const auto pause = kPauses.at(std::min(m_tries++, kPauses.size() - 1));
    m_pause = m_clock.after(pause, [this] { goOn(); });
}

void MirrorModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible == tool())
        start();
    else
        stop();
}

} // namespace Kestrune
