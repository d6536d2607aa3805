#include "HelperCamera.h"

#include "CameraRun.h"
#include "Desktop/Helpers/InstalledHelper.h"
#include "Log.h"

#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <utility>

namespace Kestrune {

Q_LOGGING_CATEGORY(cameraLog, "kestrune.camera", QtWarningMsg)

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestProbe = 20s;   // The first one of a user lists all plugins.
constexpr int kLongestProbeEnd = 500; // ms
constexpr auto kLongestList = 5s;
constexpr qint64 kMostListed = qint64{16} * 1024; // Bytes.
constexpr auto kSlack = 10s;                      // A loop that needs longer to notice hangs.

/// One look for a camera. Deletes itself once the pledge is given.
class Probe : public QObject
{
public:
    /// `failed` is called before the pledge is given, on this thread.
    Probe(QObject *parent, const QString &helper, const QString &camera, const Pledge<bool> &pledge,
          std::function<void()> failed)
        : QObject(parent)
        , m_pledge(pledge)
        , m_failed(std::move(failed))
    {
        connect(&m_process, &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
            finish(how == QProcess::NormalExit && status == 0);
        });
        connect(&m_process, &QProcess::errorOccurred, this, [this] { finish(false); });
        m_pledge.whenGivenUp(this, [this] { finish(false); });
        QTimer::singleShot(kLongestProbe, this, [this] { finish(false); });
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(helper, {QString::fromLatin1(CameraWire::kProbe), camera});
    }
    ~Probe() override
    {
        m_process.disconnect(this);
        m_process.kill(); // One that was given up is still looking.
        m_process.waitForFinished(kLongestProbeEnd);
    }
    Q_DISABLE_COPY_MOVE(Probe)

private:
    void finish(bool usable)
    {
        qCInfo(cameraLog, usable ? "a camera is there" : "no camera, or no helper to find one");
        if (!usable)
            m_failed();
        m_pledge.give(usable);
        deleteLater();
    }

    Pledge<bool> m_pledge;
    std::function<void()> m_failed;
    QProcess m_process;
};

/// The shape's order, smaller where it would not fit in its slot.
CameraWire::Order makeOrder(const PictureShape &shape, int slot)
{
    constexpr double kMostPixels = static_cast<double>(CameraWire::kSlotBytes) / CameraWire::kPixelBytes;
    const double pixels = static_cast<double>(shape.size.width()) * shape.size.height();
    const double scale = std::min(1.0, std::sqrt(kMostPixels / std::max(pixels, 1.0)));
    const auto scaled = [scale](int length) { return std::max(1, static_cast<int>(length * scale)); };
    return {slot, scaled(shape.size.width()), scaled(shape.size.height()),
            static_cast<float>(shape.radius * scale)};
}

/// What the helper says of the cameras.
QList<CameraDevice> devicesIn(const QByteArray &lines)
{
    QList<CameraDevice> devices;
    for (const QByteArray &line : lines.split('\n')) {
        const qsizetype tab = line.indexOf('\t');
        if (tab > 0)
            devices.append({QString::fromUtf8(line.left(tab)), QString::fromUtf8(line.mid(tab + 1))});
    }
    std::ranges::sort(devices, {}, &CameraDevice::name);
    return devices;
}

CameraRun *runOn(const QObject &thread) { return thread.findChild<CameraRun *>(); }

} // namespace

HelperCamera::HelperCamera(const QDBusConnection &bus, const QString &helper)
    : m_helper(helper)
    , m_access(bus)
{}

HelperCamera::~HelperCamera() { m_running = false; }

QString HelperCamera::installed() { return installedHelper(QStringLiteral("kestrune-camera")); }

QFuture<bool> HelperCamera::configure()
{
    // A portal that knew of no camera was not asked for one: it is before the next look.
    const auto forget = [this, back = m_back.handle()] { back.post([this] { m_access.forget(); }); };
    const auto probe = [helper = m_helper, camera = m_chosen, forget](QObject &thread,
                                                                      const Pledge<bool> &pledge) {
        new Probe(&thread, helper, camera, pledge, forget);
    };
    return m_loop.ask<bool>(kLongestProbe + kSlack, probe);
}

QFuture<QList<CameraDevice>> HelperCamera::cameras()
{
    const auto list = [helper = m_helper](QObject &thread, const Pledge<QList<CameraDevice>> &pledge) {
        auto *process = new QProcess(&thread);
        connect(process, &QProcess::finished, process, [process, pledge] {
            pledge.give(devicesIn(process->read(kMostListed)));
            process->deleteLater();
        });
        connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
        QTimer::singleShot(kLongestList, process, &QProcess::kill);
        process->start(helper, {QString::fromLatin1(CameraWire::kList)});
    };
    return m_loop.ask<QList<CameraDevice>>(kLongestList + kSlack, list);
}

void HelperCamera::startRunning()
{
    if (std::exchange(m_running, true))
        return;
    m_ordered = false;
    const quint64 number = ++m_runs;
    const auto take = [this, number, back = m_back.handle()](const QImage &picture) {
        back.post([this, number, picture] { this->take(number, picture); });
    };
    const auto lose = [this, number, back = m_back.handle()] {
        back.post([this, number] { this->lose(number); });
    };
    m_loop.post([helper = m_helper, camera = m_chosen, reports = CameraRun::Reports{take, lose}](
                    QObject &thread) { new CameraRun(helper, camera, reports, &thread); });
}

void HelperCamera::stopRunning()
{
    if (!std::exchange(m_running, false))
        return;
    m_access.forget();
    m_loop.post([](QObject &thread) { delete runOn(thread); });
}

void HelperCamera::requestPicture(const PictureShape &shape)
{
    if (!m_running || m_ordered || shape.size.isEmpty())
        return;
    m_ordered = true;
    m_slot = (m_slot + 1) % CameraWire::kSlots;
    m_loop.post([order = makeOrder(shape, m_slot)](QObject &thread) {
        if (auto *run = runOn(thread))
            run->order(order);
    });
}

void HelperCamera::take(quint64 run, const QImage &picture)
{
    if (!isCurrent(run))
        return;
    m_ordered = false;
    if (m_handlers.picture)
        m_handlers.picture(picture);
}

void HelperCamera::lose(quint64 run)
{
    if (!isCurrent(run))
        return;
    stopRunning();
    if (m_handlers.lost)
        m_handlers.lost();
}

} // namespace Kestrune
