#include "EvolutionBus.h"

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

std::optional<QList<EvolutionCalendar>> EvolutionBus::open(bool taskLists)
{
    const auto enabled = sources();
    const QString factory = newest(prefix() + QLatin1String("Calendar"));
    if (!enabled || factory.isEmpty())
        return std::nullopt;
    QList<EvolutionCalendar> opened;
    std::vector<Opening> opening;
    for (const EvolutionSource &source : *enabled) {
        if (source.isTaskList != taskLists)
            continue;
        EvolutionCalendar calendar = m_open.value(source.uid);
        calendar.source = source;
        if (calendar.path.isEmpty())
            opening.push_back(
                {calendar, send(factory, QStringLiteral("/org/gnome/evolution/dataserver/CalendarFactory"),
                                prefix() + QLatin1String("CalendarFactory"),
                                taskLists ? QStringLiteral("OpenTaskList") : QStringLiteral("OpenCalendar"),
                                {source.uid})});
        else
            opened.append(calendar);
    }
    return opened + finish(std::move(opening));
}

/// All at once: one that does not answer costs the others no more than its own time.
QList<EvolutionCalendar> EvolutionBus::finish(std::vector<Opening> opening)
{
    for (Opening &one : opening) {
        one.call.waitForFinished();
        if (one.call.isError())
            continue;
        const QVariantList place = one.call.reply().arguments();
        one.calendar.path = place.value(0).toString();
        one.calendar.service = place.value(1).toString();
        one.call = call(one.calendar, QStringLiteral("Open"), {});
    }
    QList<EvolutionCalendar> all;
    for (Opening &one : opening) {
        const QString &uid = one.calendar.source.uid;
        one.call.waitForFinished();
        if (!one.call.isError()) {
            m_open.insert(uid, one.calendar);
            m_reported.remove(uid);
        } else {
            if (!m_reported.contains(uid))
                qCWarning(calendarLog, "the calendar %s cannot be opened: %s", qUtf8Printable(uid),
                          qUtf8Printable(one.call.error().message()));
            m_reported.insert(uid);
            one.calendar.path.clear();
        }
        all.append(one.calendar);
    }
    return all;
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
