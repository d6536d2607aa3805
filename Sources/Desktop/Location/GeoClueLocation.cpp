#include "GeoClueLocation.h"

#include <QFile>
#include <QGeoPositionInfoSource>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <chrono>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(locationLog, "kestrune.location", QtWarningMsg)

constexpr std::chrono::milliseconds kLongest = 30s;
constexpr auto kSlack = 10s; // A loop that needs longer to notice hangs.

using Place = std::optional<Coordinate>;

/// One request for a fix. Deletes itself, and with it the connection to the service, once the promise is
/// kept.
class Fix : public QObject
{
public:
    Fix(QObject *parent, const Pledge<Place> &pledge)
        : QObject(parent)
        , m_pledge(pledge)
        // By its name: the others would listen on a serial port.
        , m_source(QGeoPositionInfoSource::createSource(
              QStringLiteral("geoclue2"), {{QStringLiteral("desktopId"), QStringLiteral("kestrune")}}, this))
    {
        m_pledge.whenGivenUp(this, [this] { finish({}); });
        if (!m_source) {
            qCInfo(locationLog, "no plugin for GeoClue is installed");
            finish({});
            return;
        }
        using Source = QGeoPositionInfoSource;
        connect(m_source, &Source::positionUpdated, this, &Fix::take);
        connect(m_source, &Source::errorOccurred, this, [this](Source::Error error) {
            qCInfo(locationLog, "no fix: error %d", error);
            finish({});
        });
        m_source->setPreferredPositioningMethods(Source::NonSatellitePositioningMethods);
        m_source->requestUpdate(static_cast<int>(kLongest.count()));
    }

    /// The plugin leaves the last fix, to the metre, in a file that all programs of the user share.
    ~Fix() override
    {
        delete m_source;
        QFile::remove(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                      QLatin1String("/qtposition-geoclue2"));
    }

private:
    Q_DISABLE_COPY_MOVE(Fix)

    void take(const QGeoPositionInfo &info)
    {
        const QGeoCoordinate found = info.coordinate();
        finish(found.isValid() ? Place(Coordinate{found.latitude(), found.longitude()}) : Place());
    }

    void finish(const Place &place)
    {
        m_pledge.give(place);
        deleteLater();
    }

    Pledge<Place> m_pledge;
    QGeoPositionInfoSource *m_source;
};

} // namespace

QFuture<std::optional<Coordinate>> GeoClueLocation::locate()
{
    const auto look = [](QObject &thread, const Pledge<Place> &pledge) { new Fix(&thread, pledge); };
    return m_loop.ask<Place>(kLongest + kSlack, look);
}

} // namespace Kestrune
