#include "MirrorModel.h"

namespace Kestrune {

MirrorModel::MirrorModel(CameraSession &session, QObject *parent)
    : ToolModel(NotchTool::mirror, parent)
    , m_session(session)
    , m_status(session.authorization())
{
    m_session.installHandlers(
        {[this](const QImage &picture) { Q_EMIT pictureTaken(picture); }, [this] { takeLoss(); }});
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
    if (m_running)
        return State::Picture;
    return m_noCamera || m_lost ? State::NoCamera : State::Waiting;
}

void MirrorModel::start()
{
    m_wanted = true;
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
        start();
}

QCoro::Task<> MirrorModel::configure()
{
    const QFuture<bool> asked = m_session.configure();
    m_configured = co_await until(asked);
    if (m_configured)
        run();
    else
        m_noCamera = true;
}

void MirrorModel::run()
{
    if (m_running)
        return;
    m_lost = false;
    m_session.startRunning(); // first: who sees it running asks for a picture
    m_running = true;
}

/// A question that the user has not answered yet stays: the next start would only ask it again.
void MirrorModel::stop()
{
    m_wanted = false;
    m_configuration.end();
    if (!m_running)
        return;
    m_running = false;
    m_session.stopRunning();
}

void MirrorModel::takeLoss()
{
    m_lost = true;
    stop();
}

void MirrorModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (visible == tool())
        start();
    else
        stop();
}

} // namespace Kestrune
