#include "MirrorModel.h"

#include <algorithm>
#include <array>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr std::array<std::chrono::milliseconds, 3> kPauses{1s, 2s, 5s}; ///< Before each try; the last stays.

}

MirrorModel::MirrorModel(Clock &clock, CameraSession &session, QObject *parent)
    : ToolModel(NotchTool::mirror, parent)
    , m_clock(clock)
    , m_session(session)
    , m_status(session.authorization())
{
    m_session.installHandlers(
        {[this](const QImage &picture) { takePicture(picture); }, [this] { takeLoss(); }});
    connect(this, &MirrorModel::runningChanged, this, &MirrorModel::stateChanged);
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
    goOn();
}

void MirrorModel::goOn()
{
    m_pause.reset();
    m_status = m_session.authorization();
    switch (m_status) {
    case CameraAuthorization::notDetermined:
        if (!m_access.isWaiting())
            m_access.start(&MirrorModel::ask, this);
        break;
    case CameraAuthorization::restricted:
    case CameraAuthorization::denied:
        break;
    case CameraAuthorization::authorized:
        if (m_configured)
            run();
        else if (!m_configuration.isWaiting())
            m_configuration.start(&MirrorModel::configure, this);
        break;
    }
}

QCoro::Task<> MirrorModel::ask()
{
    const QFuture<bool> asked = m_session.requestAccess();
    co_await until(asked);
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
