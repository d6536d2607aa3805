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
        ask();
        break;
    case CameraAuthorization::restricted:
    case CameraAuthorization::denied:
        break;
    case CameraAuthorization::authorized:
        if (m_configured)
            run();
        else
            configure();
        break;
    }
}

void MirrorModel::ask()
{
    if (m_access)
        return;
    m_access = std::make_unique<Answer<bool>>(m_session.requestAccess(), [this](bool /*allowed*/) {
        m_access.reset();
        if (m_wanted)
            start();
    });
}

void MirrorModel::configure()
{
    if (m_configuration)
        return;
    m_configuration = std::make_unique<Answer<bool>>(m_session.configure(), [this](bool usable) {
        m_configuration.reset();
        m_configured = usable;
        if (usable)
            run();
        else
            m_noCamera = true;
    });
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
    m_configuration.reset();
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
