#include "CameraRun.h"

#include "Log.h"
#include "SharedPictures.h"

#include <QMetaObject>

#include <utility>

#include <fcntl.h>

namespace Kestrune {

namespace {

constexpr int kLongestEnd = 500; // ms; only a camera whose driver hangs takes longer than a few.

}

CameraRun::CameraRun(const QString &program, const QString &camera, Reports reports, QObject *parent)
    : QObject(parent)
    , m_reports(std::move(reports))
    , m_pictures(SharedPictures::create())
{
    if (m_pictures)
        start(program, camera);
    else
        QMetaObject::invokeMethod(this, &CameraRun::lose, Qt::QueuedConnection);
}

CameraRun::~CameraRun()
{
    m_helper.disconnect(this);
    if (m_helper.state() == QProcess::NotRunning)
        return;
    m_helper.kill();
    m_helper.waitForFinished(kLongestEnd);
}

void CameraRun::start(const QString &program, const QString &camera)
{
    connect(&m_helper, &QProcess::readyReadStandardOutput, this, &CameraRun::takeReply);
    connect(&m_helper, &QProcess::finished, this, &CameraRun::lose);
    connect(&m_helper, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            QMetaObject::invokeMethod(this, &CameraRun::lose, Qt::QueuedConnection);
    });
    const int descriptor = m_pictures->descriptor();
    m_helper.setChildProcessModifier([descriptor] { ::fcntl(descriptor, F_SETFD, 0); });
    m_helper.setInputChannelMode(QProcess::ManagedInputChannel);
    m_helper.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_helper.start(program, {QString::number(descriptor), camera},
                   QIODevice::ReadWrite | QIODevice::Unbuffered);
}

void CameraRun::order(const CameraWire::Order &order)
{
    m_order = order;
    m_helper.write(reinterpret_cast<const char *>(&order), sizeof order);
}

void CameraRun::takeReply()
{
    if (!m_helper.readAllStandardOutput().isEmpty())
        m_reports.picture(m_pictures->picture(m_order));
}

void CameraRun::lose()
{
    const auto lost = std::exchange(m_reports.lost, {});
    if (!lost)
        return;
    qCInfo(cameraLog, "the helper ended: %s", qUtf8Printable(m_helper.errorString()));
    lost();
}

} // namespace Kestrune
