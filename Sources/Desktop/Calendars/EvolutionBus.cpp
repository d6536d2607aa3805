#include "EvolutionBus.h"

#include "Desktop/Bus/PendingCalls.h"
#include "Log.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>

namespace Kestrune {

namespace {

constexpr int kTimeout = 10'000; // Milliseconds.

QString prefix() { return QStringLiteral("org.gnome.evolution.dataserver."); }

QStringList namesOnBus(const QDBusConnection &bus, const QString &method)
{
    const QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                             QStringLiteral("/org/freedesktop/DBus"),
                                                             QStringLiteral("org.freedesktop.DBus"), method);
    return QDBusReply<QStringList>(bus.call(call, QDBus::Block, kTimeout)).value();
}

/// The names' version is at their end; the newest one, or nothing.
QString newestOf(const QStringList &names, const QString &begin)
{
    QString newest;
    int best = -1;
    for (const QString &name : names) {
        bool isNumber = false;
        const int version = name.mid(begin.size()).toInt(&isNumber);
        if (name.startsWith(begin) && isNumber && version > best) {
            best = version;
            newest = name;
        }
    }
    return newest;
}

QList<EvolutionKeyFile> keyFiles(const QDBusArgument &objects)
{
    QList<EvolutionKeyFile> files;
    objects.beginMap();
    while (!objects.atEnd()) {
        QDBusObjectPath path;
        objects.beginMapEntry();
        objects >> path;
        objects.beginMap();
        while (!objects.atEnd()) {
            QString interface;
            QVariantMap properties;
            objects.beginMapEntry();
            objects >> interface >> properties;
            objects.endMapEntry();
            if (interface == prefix() + QLatin1String("Source"))
                files.append({properties.value(QStringLiteral("UID")).toString(),
                              properties.value(QStringLiteral("Data")).toString()});
        }
        objects.endMap();
        objects.endMapEntry();
    }
    objects.endMap();
    return files;
}

} // namespace

EvolutionBus::State EvolutionBus::state() const
{
    const QString begin = prefix() + QLatin1String("Calendar");
    if (!newestOf(namesOnBus(m_bus, QStringLiteral("ListNames")), begin).isEmpty())
        return State::running;
    return newestOf(namesOnBus(m_bus, QStringLiteral("ListActivatableNames")), begin).isEmpty()
               ? State::missing
               : State::startable;
}

QString EvolutionBus::newest(const QString &prefix) const
{
    const QString running = newestOf(namesOnBus(m_bus, QStringLiteral("ListNames")), prefix);
    return running.isEmpty() ? newestOf(namesOnBus(m_bus, QStringLiteral("ListActivatableNames")), prefix)
                             : running;
}

QDBusPendingCall EvolutionBus::send(const QString &service, const QString &path, const QString &interface,
                                    const QString &method, const QVariantList &arguments) const
{
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    call.setArguments(arguments);
    return m_bus.asyncCall(call, kTimeout);
}

std::optional<QList<EvolutionSource>> EvolutionBus::sources() const
{
    const QString service = newest(prefix() + QLatin1String("Sources"));
    if (service.isEmpty()) {
        qCInfo(calendarLog, "no service of Evolution's calendars is on the bus");
        return std::nullopt;
    }
    QDBusPendingCall call =
        send(service, QStringLiteral("/org/gnome/evolution/dataserver/SourceManager"),
             QStringLiteral("org.freedesktop.DBus.ObjectManager"), QStringLiteral("GetManagedObjects"), {});
    call.waitForFinished();
    const QDBusMessage reply = call.reply();
    if (reply.signature() != QLatin1String("a{oa{sa{sv}}}")) {
        qCInfo(calendarLog, "Evolution's sources are not to be had: %s", qUtf8Printable(reply.errorName()));
        return std::nullopt;
    }
    return enabledSources(keyFiles(reply.arguments().value(0).value<QDBusArgument>()));
}

void EvolutionBus::awaitNew(const QList<QDBusPendingCall> &calls) const
{
    PendingCalls::awaitMost(calls, std::chrono::milliseconds(kTimeout), m_patience);
}

std::optional<QList<EvolutionCalendar>> EvolutionBus::open(bool taskLists)
{
    auto enabled = sources();
    const QString factory = newest(prefix() + QLatin1String("Calendar"));
    if (!enabled || factory.isEmpty())
        return std::nullopt;
    enabled->removeIf([&](const EvolutionSource &source) { return source.isTaskList != taskLists; });
    QList<QDBusPendingCall> begun;
    for (const EvolutionSource &source : std::as_const(*enabled)) {
        if (!m_open.contains(source.uid) && !m_opening.contains(source.uid))
            startOpening(source, factory, begun);
    }
    awaitNew(begun);
    QList<QDBusPendingCall> second;
    for (const EvolutionSource &source : std::as_const(*enabled)) {
        const auto opening = m_opening.find(source.uid);
        if (opening != m_opening.end())
            goOn(opening->second, second);
    }
    awaitNew(second);
    return finish(*enabled);
}

void EvolutionBus::startOpening(const EvolutionSource &source, const QString &factory,
                                QList<QDBusPendingCall> &calls)
{
    const QString method =
        source.isTaskList ? QStringLiteral("OpenTaskList") : QStringLiteral("OpenCalendar");
    const auto call = send(factory, QStringLiteral("/org/gnome/evolution/dataserver/CalendarFactory"),
                           prefix() + QLatin1String("CalendarFactory"), method, {source.uid});
    m_opening.emplace(source.uid, Opening{{source, {}, {}}, call});
    calls.append(call);
}

/// The factory has told where the calendar is: now that is opened.
void EvolutionBus::goOn(Opening &opening, QList<QDBusPendingCall> &calls) const
{
    if (!opening.calendar.path.isEmpty() || !opening.call.isFinished() || opening.call.isError())
        return;
    const QVariantList place = opening.call.reply().arguments();
    opening.calendar.path = place.value(0).toString();
    opening.calendar.service = place.value(1).toString();
    opening.call = call(opening.calendar, QStringLiteral("Open"), {});
    calls.append(opening.call);
}

QList<EvolutionCalendar> EvolutionBus::finish(const QList<EvolutionSource> &sources)
{
    QList<EvolutionCalendar> all;
    for (const EvolutionSource &source : sources) {
        const auto opening = m_opening.find(source.uid);
        if (opening != m_opening.end() && opening->second.call.isFinished()) {
            finish(opening->second);
            m_opening.erase(opening);
        }
        EvolutionCalendar calendar = m_open.value(source.uid);
        calendar.source = source;
        all.append(calendar);
    }
    return all;
}

void EvolutionBus::finish(const Opening &opening)
{
    const QString &uid = opening.calendar.source.uid;
    if (!opening.call.isError()) {
        m_open.insert(uid, opening.calendar);
        m_reported.remove(uid);
        return;
    }
    if (!m_reported.contains(uid))
        qCWarning(calendarLog, "the calendar %s cannot be opened: %s", qUtf8Printable(uid),
                  qUtf8Printable(opening.call.error().message()));
    m_reported.insert(uid);
}

QHash<QString, QList<QByteArray>> EvolutionBus::objects(const QList<EvolutionCalendar> &calendars,
                                                        const QString &question)
{
    QList<QDBusPendingCall> asked;
    for (const EvolutionCalendar &calendar : calendars) {
        if (m_waiting.contains(calendar.path))
            continue;
        asked.append(call(calendar, QStringLiteral("GetObjectList"), {question}));
        m_waiting.insert(calendar.path, asked.constLast());
    }
    awaitNew(asked);
    QHash<QString, QList<QByteArray>> found;
    for (const EvolutionCalendar &calendar : calendars) {
        const auto waiting = m_waiting.find(calendar.path);
        if (!waiting->isFinished())
            continue;
        if (const auto answer = texts(calendar, *waiting))
            found.insert(calendar.source.uid, *answer);
        m_waiting.erase(waiting);
    }
    return found;
}

bool EvolutionBus::isWritable(const EvolutionCalendar &calendar) const
{
    QDBusPendingCall call =
        send(calendar.service, calendar.path, QStringLiteral("org.freedesktop.DBus.Properties"),
             QStringLiteral("Get"), {prefix() + QLatin1String("Calendar"), QStringLiteral("Writable")});
    call.waitForFinished();
    return call.reply().arguments().value(0).value<QDBusVariant>().variant().toBool();
}

QDBusPendingCall EvolutionBus::call(const EvolutionCalendar &calendar, const QString &method,
                                    const QVariantList &arguments) const
{
    return send(calendar.service, calendar.path, prefix() + QLatin1String("Calendar"), method, arguments);
}

std::optional<QList<QByteArray>> EvolutionBus::texts(const EvolutionCalendar &calendar, QDBusPendingCall call)
{
    call.waitForFinished();
    if (call.isError()) {
        const auto kind = call.error().type();
        qCInfo(calendarLog, "a calendar of Evolution's answers %s", qUtf8Printable(call.error().name()));
        if (kind != QDBusError::Other && kind != QDBusError::NoReply)
            m_open.remove(calendar.source.uid);
        return std::nullopt;
    }
    QList<QByteArray> texts;
    for (const QVariant &value : call.reply().arguments()) {
        for (const QString &text : value.toStringList())
            texts.append(text.toUtf8());
    }
    return texts;
}

} // namespace Kestrune
