#pragma once

#include "Desktop/BusStandIn.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

/// A server with a calendar that does not answer one of its calls until it is let.
struct SlowServer : StandInBus
{
    explicit SlowServer(const QString &held)
    {
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        registry.appear(
            [](const QDBusMessage &call) { return call.createReply(QVariant::fromValue(sources())); });
        factory.appear([this, held](const QDBusMessage &call) -> std::optional<QDBusMessage> {
            const bool isSlow = call.path().endsWith(u"slow"_s) || call.arguments().value(0) == u"slow"_s;
            if (!isSlow || call.member() != held || isLet)
                return reply(call);
            waiting.append(call);
            return std::nullopt;
        });
    }
    void letGo()
    {
        isLet = true;
        for (const QDBusMessage &call : waiting)
            factory.send(reply(call));
    }
    static Objects sources()
    {
        Objects all;
        for (const QString &uid : {u"quick"_s, u"slow"_s})
            all[QDBusObjectPath(u"/source/"_s + uid)][kPrefix + u"Source"_s] = {
                {u"UID"_s, uid}, {u"Data"_s, u"[Data Source]\nDisplayName=%1\n[Calendar]\n"_s.arg(uid)}};
        return all;
    }
    QDBusMessage reply(const QDBusMessage &call) const
    {
        const QString uid = call.path().section(u'/', -1);
        if (call.member() == "OpenCalendar"_L1)
            return call.createReply(
                {u"/calendar/"_s + call.arguments().value(0).toString(), kPrefix + u"Calendar8"_s});
        if (call.member() == "GetObjectList"_L1)
            return call.createReply(QStringList{
                u"BEGIN:VEVENT\nUID:%1\nSUMMARY:%1\nDTSTART:20260328T120000Z\nEND:VEVENT\n"_s.arg(uid)});
        return call.createReply();
    }

    static inline const QString kPrefix = u"org.gnome.evolution.dataserver."_s;
    QList<QDBusMessage> waiting;
    bool isLet = false;
    ServiceStandIn registry{bus.address(), kPrefix + u"Sources5"_s};
    ServiceStandIn factory{bus.address(), kPrefix + u"Calendar8"_s};
};
