#pragma once

#include "Async/Scope.h"
#include "Forecast.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/HttpClient.h"
#include "NotchKit/Platform/LocationService.h"
#include "NotchKit/ToolModel.h"

#include <QProperty>

namespace Kestrune {

class NotchSettings;

/// The weather at one place, which the user names or lets the computer find. The place and the units are
/// settings; here are only the last figures. Asks the forecast service while they are on screen, at most
/// every quarter of an hour unless the place or the units change; after a sleep, and where the service could
/// not be reached, sooner. Main thread only.
class WeatherModel : public ToolModel
{
    Q_OBJECT
    Q_PROPERTY(bool hasPlace READ hasPlace NOTIFY placeChanged)
    /// A city is looked up.
    Q_PROPERTY(bool searching READ searching NOTIFY searchingChanged)
    /// The computer's own place is looked up.
    Q_PROPERTY(bool locating READ locating NOTIFY locatingChanged)
    /// What to tell the user instead of figures; empty for nothing.
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    using Day = WeatherDay;

    WeatherModel(NotchSettings &settings, Clock &clock, HttpClient &http, LocationService &location,
                 QObject *parent = nullptr);

    bool hasPlace() const;
    bool searching() const { return m_searching; }
    bool locating() const { return m_locating; }
    QString error() const { return m_error; }

    /// The last figures; those that never came are absent.
    std::optional<double> temperature() const { return m_temperature; }
    std::optional<int> code() const { return m_code; }
    std::optional<double> wind() const { return m_wind; } ///< At ten metres.
    const QList<Day> &days() const { return m_days.value(); }
    QString symbol() const { return weatherSymbol(m_code); }

    /// When they came, UTC; invalid while none did.
    QDateTime figuresTime() const { return m_figuresTime; }

    /// Whether newer ones were asked for and did not come.
    bool isStale() const { return m_stale; }

    /// Whether they are in °F and miles per hour rather than in °C and kilometres per hour.
    bool isFahrenheit() const { return m_fahrenheit; }

    /// Whether they are of the place that is set now: those of a new place may be on their way.
    bool hasFiguresOfPlace() const;

    /// Asks for the forecast; without `force`, only when a quarter of an hour has passed since the last time.
    /// Does nothing without a place.
    void refresh(bool force);

    /// Looks for a city and, where there is one, makes it the place. What was looked for before is given up.
    Q_INVOKABLE void search(const QString &query);

    /// Makes the place where this computer is the place.
    Q_INVOKABLE void useCurrentLocation();

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void machineWoke() override;
    void networkReturned() override;
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void placeChanged();
    void searchingChanged();
    void locatingChanged();
    void errorChanged();
    void figuresChanged();

    /// A search or a location fix has found a place, maybe the same as before.
    void placeFound();

private:
    struct Asked
    {
        Coordinate place;
        bool fahrenheit = false;
    };

    /// How far the last request for a forecast has come.
    enum class Round { answered, waiting, unreached };

    std::optional<Coordinate> place() const;
    bool isTooEarly() const;
    void setStale(bool stale);
    bool showsFigures(std::optional<NotchTool> visible) const;
    QCoro::Task<> fetch(Asked asked);
    QCoro::Task<> lookUp(QString city);
    QCoro::Task<> locate();
    void take(const HttpReply &reply, const Asked &asked);
    void takePlace(const HttpReply &reply, const QString &query);
    void takeFix(const std::optional<Coordinate> &fix);
    void setPlace(const QString &name, const Coordinate &place);
    void placeOrUnitChanged();
    void fail(const char *message);

    NotchSettings &m_settings;
    Clock &m_clock;
    HttpClient &m_http;
    LocationService &m_location;
    std::optional<std::chrono::nanoseconds> m_lastFetch; ///< Nothing: the next refresh fetches.
    Round m_round = Round::answered;
    std::optional<Coordinate> m_figuresPlace;
    QDateTime m_figuresTime;
    bool m_stale = false;
    bool m_fahrenheit = false;
    Scope m_forecasts;
    Scope m_places; ///< A city is looked up, or the computer's own place.
    Q_OBJECT_BINDABLE_PROPERTY(WeatherModel, std::optional<double>, m_temperature,
                               &WeatherModel::figuresChanged)
    Q_OBJECT_BINDABLE_PROPERTY(WeatherModel, std::optional<int>, m_code, &WeatherModel::figuresChanged)
    Q_OBJECT_BINDABLE_PROPERTY(WeatherModel, std::optional<double>, m_wind, &WeatherModel::figuresChanged)
    Q_OBJECT_BINDABLE_PROPERTY(WeatherModel, QList<WeatherDay>, m_days, &WeatherModel::figuresChanged)
    Q_OBJECT_BINDABLE_PROPERTY(WeatherModel, QString, m_error, &WeatherModel::errorChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(WeatherModel, bool, m_searching, false,
                                         &WeatherModel::searchingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(WeatherModel, bool, m_locating, false,
                                         &WeatherModel::locatingChanged)
};

} // namespace Kestrune
