#pragma once

#include "EvolutionSources.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QHash>
#include <QSet>

#include <optional>
#include <vector>

namespace Kestrune {

/// One calendar that the server has open for this program.
struct EvolutionCalendar
{
    EvolutionSource source;
    QString service;
    QString path; ///< Empty while it is not open.
};

/// The bus calls of Evolution Data Server. Each waits for its answer, ten seconds at the most; on a thread
/// of its own only.
class EvolutionBus
{
public:
    explicit EvolutionBus(const QDBusConnection &bus)
        : m_bus(bus)
    {}

    enum class State { missing, startable, running };

    /// Whether the server runs or can be started.
    State state() const;

    /// Starts the server where needed and opens its calendars or its task lists; those that cannot be opened
    /// are without a path. Nothing when the server is not to be reached.
    std::optional<QList<EvolutionCalendar>> open(bool taskLists);

    /// Whether clients may change the calendar; the server leaves it to them to keep to that.
    bool isWritable(const EvolutionCalendar &calendar) const;

    /// Sends a call to a calendar. The answer is waited for with `texts`.
    QDBusPendingCall call(const EvolutionCalendar &calendar, const QString &method,
                          const QVariantList &arguments) const;

    /// The answer's text or texts; nothing when it is an error: a calendar that is gone is opened anew then.
    std::optional<QList<QByteArray>> texts(const EvolutionCalendar &calendar, QDBusPendingCall call);

private:
    /// A calendar that is being opened, and the call that is under way for that.
    struct Opening
    {
        EvolutionCalendar calendar;
        QDBusPendingCall call;
    };

    QList<EvolutionCalendar> finish(std::vector<Opening> opening);
    QDBusPendingCall send(const QString &service, const QString &path, const QString &interface,
                          const QString &method, const QVariantList &arguments) const;
    QString newest(const QString &prefix) const;
    std::optional<QList<EvolutionSource>> sources() const;

    QDBusConnection m_bus;
    QHash<QString, EvolutionCalendar> m_open; ///< By the source.
    QSet<QString> m_reported;                 ///< Those whose failure was logged.
};

} // namespace Kestrune
