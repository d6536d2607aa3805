#include "HelperCamera.h"

#include "CameraRun.h"

#include <QCoreApplication>
#include <QFutureWatcher>
#include <QProcess>
#include <QPromise>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLongestProbe = 20s; // The first one of a user lists all plugins.

using Promise = std::shared_ptr<QPromise<bool>>;

/// One look for a camera. Deletes itself once the promise is kept.
class Probe : public QObject
{
public:
    Probe(QObject *parent, const QString &helper, Promise promise)
        : QObject(parent)
        , m_promise(std::move(promise))
    {
        connect(&m_process, &QProcess::finished, this, [this](int status, QProcess::ExitStatus how) {
            finish(how == QProcess::NormalExit && status == 0);
        });
        connect(&m_process, &QProcess::errorOccurred, this, [this] { finish(false); });
        connect(&m_watcher, &QFutureWatcherBase::canceled, this, [this] { finish(false); });
        m_watcher.setFuture(m_promise->future());
        QTimer::singleShot(kLongestProbe, this, [this] { finish(false); });
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(helper, {QString::fromLatin1(CameraWire::kProbe)});
    }
    ~Probe() override { m_process.disconnect(this); }
    Q_DISABLE_COPY_MOVE(Probe)

private:
    void finish(bool usable)
    {
        if (const Promise promise = std::exchange(m_promise, {})) {
            promise->addResult(usable);
            promise->finish();
            deleteLater();
        }
    }

    Promise m_promise;
    QFutureWatcher<bool> m_watcher;
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

} // namespace

HelperCamera::HelperCamera(const QDBusConnection &bus, const QString &helper)
    : m_helper(helper)
    , m_access(bus)
    , m_run(std::make_shared<QPointer<CameraRun>>())
{}

HelperCamera::~HelperCamera() { m_running = false; }

QString HelperCamera::installedHelper()
{
    const QString folder = QCoreApplication::applicationDirPath();
    return QStandardPaths::findExecutable(
        QStringLiteral("kestrune-camera"),
        {folder, folder + QStringLiteral("/../" KESTRUNE_LIBEXEC "/kestrune")});
}

template <typename Function>
void HelperCamera::post(Function function)
{
    QMetaObject::invokeMethod(m_loop.context(), std::move(function), Qt::QueuedConnection);
}

QFuture<bool> HelperCamera::configure()
{
    const auto promise = std::make_shared<QPromise<bool>>();
    promise->start();
    post([context = m_loop.context(), helper = m_helper, promise] { new Probe(context, helper, promise); });
    return promise->future();
}

void HelperCamera::startRunning()
{
    if (std::exchange(m_running, true))
        return;
    m_ordered = false;
    const quint64 number = ++m_runs;
    const auto toMain = [this](auto function) {
        QMetaObject::invokeMethod(this, std::move(function), Qt::QueuedConnection);
    };
    const CameraRun::Reports reports{[this, number, toMain](const QImage &picture) {
                                         toMain([this, number, picture] { take(number, picture); });
                                     },
                                     [this, number, toMain] { toMain([this, number] { lose(number); }); }};
    post([context = m_loop.context(), run = m_run, helper = m_helper, reports] {
        *run = new CameraRun(helper, reports, context);
    });
}

void HelperCamera::stopRunning()
{
    if (!std::exchange(m_running, false))
        return;
    m_access.forget();
    post([run = m_run] { delete run->data(); });
}

void HelperCamera::requestPicture(const PictureShape &shape)
{
    if (!m_running || m_ordered || shape.size.isEmpty())
        return;
    m_ordered = true;
    m_slot = (m_slot + 1) % CameraWire::kSlots;
    post([run = m_run, order = makeOrder(shape, m_slot)] {
        if (*run)
            (*run)->order(order);
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
