#pragma once

#include "EvolutionSources.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QHash>
#include <QSet>

#include <chrono>
#include <map>
#include <optional>

namespace Kestrune {

/// One calendar that the server has open for this program.
struct EvolutionCalendar
{
    EvolutionSource source;
    QString service;
    QString path; ///< Empty while it is not open.
};

/// The bus calls of Evolution Data Server. Each waits for its answer, ten seconds at the most; on a thread
/// of its own only. Of several calendars one that lets the others wait is left behind: what it is asked goes
/// on, and it is asked nothing more, and not waited for again, until it has answered.
class EvolutionBus
{
public:
    /// A calendar may take `patience` longer than the first one that answers.
    EvolutionBus(const QDBusConnection &bus, std::chrono::milliseconds patience)
        : m_bus(bus)
        , m_patience(patience)
    {}

    enum class State { missing, startable, running };

    /// Whether the server runs or can be started.
    State state() const;

    /// Starts the server where needed and opens its calendars or its task lists; those that cannot be opened,
    /// or not yet, are without a path. Nothing when the server is not to be reached.
    std::optional<QList<EvolutionCalendar>> open(bool taskLists);

    /// Whether clients may change the calendar; the server leaves it to them to keep to that.
    bool isWritable(const EvolutionCalendar &calendar) const;

    /// Sends a call to a calendar. The answer is waited for with `texts`.
    QDBusPendingCall call(const EvolutionCalendar &calendar, const QString &method,
                          const QVariantList &arguments) const;

    /// What the calendars hold that the server's `question` finds, by their uid. Those that fail, or have not
    /// answered yet, are left out.
    QHash<QString, QList<QByteArray>> objects(const QList<EvolutionCalendar> &calendars,
                                              const QString &question);

    /// The answer's text or texts; nothing when it is an error: a calendar that is gone is opened anew then.
    std::optional<QList<QByteArray>> texts(const EvolutionCalendar &calendar, QDBusPendingCall call);

private:
    /// A calendar that is being opened, and the call that is under way for that.
    struct Opening
    {
        EvolutionCalendar calendar;
        QDBusPendingCall call;
    };

    void awaitNew(const QList<QDBusPendingCall> &calls) const;
    void startOpening(const EvolutionSource &source, const QString &factory, QList<QDBusPendingCall> &calls);
    void goOn(Opening &opening, QList<QDBusPendingCall> &calls) const;
    QList<EvolutionCalendar> finish(const QList<EvolutionSource> &sources);
    void finish(const Opening &opening);
    QDBusPendingCall send(const QString &service, const QString &path, const QString &interface,
                          const QString &method, const QVariantList &arguments) const;
    QString newest(const QString &prefix) const;
    std::optional<QList<EvolutionSource>> sources() const;

    QDBusConnection m_bus;
    std::chrono::milliseconds m_patience;
    QHash<QString, EvolutionCalendar> m_open;   ///< By the source.
    std::map<QString, Opening> m_opening;       ///< The same.
    QHash<QString, QDBusPendingCall> m_waiting; ///< What was asked of a calendar, by its path.
    QSet<QString> m_reported;                   ///< Those whose failure was logged.
};

} // namespace Kestrune
