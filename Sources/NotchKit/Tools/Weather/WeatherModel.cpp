#include "WeatherModel.h"

#include "NotchKit/NotchSettings.h"
#include "NotchKit/NotchStrings.h"
#include "NotchKit/WebServices.h"

#include <QLocale>
#include <QLoggingCategory>

#include <cmath>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

Q_LOGGING_CATEGORY(weatherLog, "kestrune.weather", QtWarningMsg)

constexpr auto kForecastPause = 15min;
constexpr auto kRetryPause = 1min; // After no answer at all, where nobody tells of the network's return.
constexpr std::chrono::milliseconds kForecastTimeout = 60s;
constexpr qint64 kMostForecastBytes = qint64{64} * 1024; // twenty times what the services send

HttpRequest get(const char *host, const QByteArray &target)
{
    return {QUrl::fromEncoded(QByteArray("https://") + host + target, QUrl::StrictMode),
            {},
            kForecastTimeout,
            kMostForecastBytes};
}

/// To about a kilometre, which is all that a forecast needs to know.
double nearby(double degrees)
{
    return std::round(degrees * 100) / 100 + 0.0; // No negative zero.
}

/// The shortest form that reads back as the same number.
QByteArray degrees(double value) { return QByteArray::number(value, 'f', QLocale::FloatingPointShortest); }

HttpRequest forecastRequest(const Coordinate &place, bool fahrenheit)
{
    return get(WebServices::kForecast,
               "/v1/forecast?latitude=" + degrees(place.latitude) + "&longitude=" + degrees(place.longitude) +
                   "&current=temperature_2m,weather_code,wind_speed_10m"
                   "&daily=weather_code,temperature_2m_max,temperature_2m_min&timezone=auto&forecast_days=7" +
                   (fahrenheit ? "&temperature_unit=fahrenheit&wind_speed_unit=mph" : ""));
}

QByteArray language()
{
    const QLocale locale;
    const QString code = locale.language() == QLocale::C ? QString() : locale.name().section(u'_', 0, 0);
    return code.isEmpty() ? QByteArray("en") : code.toLatin1();
}

HttpRequest placeRequest(const QString &name)
{
    // What a query may hold, but for the characters that end or alter a parameter.
    const QByteArray encoded = QUrl::toPercentEncoding(name, "!$'()*,/:;?@");
    return get(WebServices::kGeocoding, "/v1/search?count=1&language=" + language() + "&name=" + encoded);
}

} // namespace

WeatherModel::WeatherModel(NotchSettings &settings, Clock &clock, HttpClient &http, LocationService &location,
                           QObject *parent)
    : ToolModel(NotchTool::weather, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_http(http)
    , m_location(location)
{
    connect(&settings, &NotchSettings::weatherLatitudeChanged, this, &WeatherModel::placeOrUnitChanged);
    connect(&settings, &NotchSettings::weatherLongitudeChanged, this, &WeatherModel::placeOrUnitChanged);
    connect(&settings, &NotchSettings::useFahrenheitChanged, this, &WeatherModel::placeOrUnitChanged);
}

std::optional<Coordinate> WeatherModel::place() const
{
    const auto latitude = m_settings.weatherLatitude();
    const auto longitude = m_settings.weatherLongitude();
    return latitude && longitude ? std::optional(Coordinate{nearby(*latitude), nearby(*longitude)})
                                 : std::nullopt;
}

bool WeatherModel::hasPlace() const { return place().has_value(); }

bool WeatherModel::hasFiguresOfPlace() const { return m_figuresPlace && m_figuresPlace == place(); }

/// The two halves of a place change one after the other: what is on screen asks at its next tick.
void WeatherModel::placeOrUnitChanged()
{
    m_lastFetch.reset();
    Q_EMIT placeChanged();
}

bool WeatherModel::isTooEarly() const
{
    const auto pause = m_round == Round::unreached ? kRetryPause : kForecastPause;
    return m_lastFetch && m_clock.uptimeWithSleep() - *m_lastFetch < pause;
}

void WeatherModel::machineWoke() { m_lastFetch.reset(); }

/// A request that is still waiting went out when there was another network, or none.
void WeatherModel::networkReturned()
{
    if (m_round == Round::waiting || m_round == Round::unreached)
        m_lastFetch.reset();
}

void WeatherModel::refresh(bool force)
{
    const auto wanted = place();
    if (!wanted || (!force && isTooEarly()))
        return;
    m_lastFetch = m_clock.uptimeWithSleep();
    m_round = Round::waiting;
    if (!std::isfinite(wanted->latitude) || !std::isfinite(wanted->longitude)) {
        take({}, {});
        return;
    }
    m_forecasts.restart(&WeatherModel::fetch, this, Asked{*wanted, m_settings.useFahrenheit()});
}

QCoro::Task<> WeatherModel::fetch(Asked asked)
{
    const QFuture<HttpReply> answer = m_http.get(forecastRequest(asked.place, asked.fahrenheit));
    const HttpReply reply = co_await until(answer);
    take(reply, asked);
}

void WeatherModel::take(const HttpReply &reply, const Asked &asked)
{
    m_round = reply.status == 0 ? Round::unreached : Round::answered;
    const auto forecast = reply.isGood() ? parseForecast(reply.body) : std::nullopt;
    if (!forecast) {
        qCInfo(weatherLog, "no forecast in a reply of status %d", reply.status);
        fail(QT_TRANSLATE_NOOP("notch", "Weather is not available right now."));
        setStale(true);
        return;
    }
    m_figuresTime = m_clock.now();
    const bool sameUnit = std::exchange(m_fahrenheit, asked.fahrenheit) == asked.fahrenheit;
    const bool samePlace = std::exchange(m_figuresPlace, asked.place) == asked.place;
    // A figure that is missing stays as it was, unless it was another place's.
    const bool keeps = sameUnit && samePlace;
    if (forecast->temperature || !keeps)
        m_temperature = forecast->temperature;
    if (forecast->code || !keeps)
        m_code = forecast->code;
    if (forecast->wind || !keeps)
        m_wind = forecast->wind;
    m_days = forecast->days;
    m_error = QString();
    setStale(false);
    if (!keeps)
        Q_EMIT figuresChanged();
}

void WeatherModel::setStale(bool stale)
{
    if (std::exchange(m_stale, stale) != stale)
        Q_EMIT figuresChanged();
}

void WeatherModel::fail(const char *message) { m_error = notchStrings(message); }

void WeatherModel::search(const QString &query)
{
    const QString name = query.trimmed();
    if (name.isEmpty() || !name.isValidUtf16())
        return;
    m_locating = false;
    m_searching = true;
    m_places.restart(&WeatherModel::lookUp, this, name);
}

QCoro::Task<> WeatherModel::lookUp(QString city)
{
    const QFuture<HttpReply> answer = m_http.get(placeRequest(city));
    const HttpReply reply = co_await until(answer);
    takePlace(reply, city);
    m_searching = false;
}

void WeatherModel::takePlace(const HttpReply &reply, const QString &query)
{
    const auto found = reply.isGood() ? parsePlace(reply.body) : std::nullopt;
    if (found)
        setPlace(found->name.isEmpty() ? query : found->name, {found->latitude, found->longitude});
    else
        fail(QT_TRANSLATE_NOOP("notch", "City not found."));
}

void WeatherModel::useCurrentLocation()
{
    m_searching = false;
    m_locating = true;
    m_places.restart(&WeatherModel::locate, this);
}

QCoro::Task<> WeatherModel::locate()
{
    const QFuture<std::optional<Coordinate>> answer = m_location.locate();
    const std::optional<Coordinate> fix = co_await until(answer);
    takeFix(fix);
}

void WeatherModel::takeFix(const std::optional<Coordinate> &fix)
{
    m_locating = false;
    if (fix)
        //: In the place of a city’s name.
        setPlace(notchStrings(QT_TRANSLATE_NOOP("notch", "My location")), *fix);
    else
        fail(QT_TRANSLATE_NOOP("notch", "Location not available. Type a city instead."));
}

void WeatherModel::setPlace(const QString &name, const Coordinate &place)
{
    m_settings.setWeatherCity(name);
    m_settings.setWeatherLatitude(nearby(place.latitude));
    m_settings.setWeatherLongitude(nearby(place.longitude));
    m_error = QString();
    Q_EMIT placeFound();
    refresh(true);
}

bool WeatherModel::showsFigures(std::optional<NotchTool> visible) const
{
    return visible == tool() ||
           (visible == NotchTool::home && m_settings.column(HomeWidget::weather) != HomeColumn::hidden);
}

void WeatherModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    if (showsFigures(visible))
        refresh(false);
}

void WeatherModel::tick(const ClockTick &tick)
{
    if (tick.anyExpanded && showsFigures(tick.visibleTool))
        refresh(false);
}

} // namespace Kestrune
