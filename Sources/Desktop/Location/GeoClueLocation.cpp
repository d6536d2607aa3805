#include "GeoClueLocation.h"

#include <QFutureWatcher>
#include <QGeoPositionInfoSource>
#include <QPromise>

#include <chrono>
#include <memory>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds kLongest = 30s;

using Place = std::optional<Coordinate>;
using Promise = std::shared_ptr<QPromise<Place>>;

/// One request for a fix. Deletes itself, and with it the connection to the service, once the promise is
/// kept.
class Fix : public QObject
{
public:
    Fix(QObject *parent, Promise promise)
        : QObject(parent)
        , m_promise(std::move(promise))
        // By its name: the others would listen on a serial port.
        , m_source(QGeoPositionInfoSource::createSource(
              QStringLiteral("geoclue2"), {{QStringLiteral("desktopId"), QStringLiteral("kestrune")}}, this))
    {
        connect(&m_watcher, &QFutureWatcherBase::canceled, this, [this] { finish({}); });
        m_watcher.setFuture(m_promise->future());
        if (!m_source) {
            finish({});
            return;
        }
        using Source = QGeoPositionInfoSource;
        connect(m_source, &Source::positionUpdated, this, &Fix::take);
        connect(m_source, &Source::errorOccurred, this, [this] { finish({}); });
        m_source->setPreferredPositioningMethods(Source::NonSatellitePositioningMethods);
        m_source->requestUpdate(static_cast<int>(kLongest.count()));
    }

private:
    void take(const QGeoPositionInfo &info)
    {
        const QGeoCoordinate found = info.coordinate();
        finish(found.isValid() ? Place(Coordinate{found.latitude(), found.longitude()}) : Place());
    }

    void finish(const Place &place)
    {
        if (!m_promise)
            return;
        const Promise promise = std::exchange(m_promise, {});
        promise->addResult(place);
        promise->finish();
        deleteLater();
    }

    Promise m_promise;
    QFutureWatcher<Place> m_watcher;
    QGeoPositionInfoSource *m_source;
};

} // namespace

QFuture<std::optional<Coordinate>> GeoClueLocation::locate()
{
    const auto promise = std::make_shared<QPromise<Place>>();
    promise->start();
    QObject *context = m_loop.context();
    QMetaObject::invokeMethod(context, [context, promise] { new Fix(context, promise); });
    return promise->future();
}

} // namespace Kestrune
