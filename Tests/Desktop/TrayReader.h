#pragma once

#include "Desktop/Tray/MenuWire.h"
#include "EndToEnd/Waiting.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>

/// A panel that reads a program's symbol and menu from the bus.
struct TrayReader
{
    QDBusConnection bus;
    QString program; ///< Its name on the bus.

    QDBusMessage ask(const QString &path, const QString &interface, const QString &method,
                     const QVariantList &arguments = {}) const
    {
        QDBusMessage call = QDBusMessage::createMethodCall(program, path, interface, method);
        call.setArguments(arguments);
        const QDBusPendingCall pending = bus.asyncCall(call);
        return waitUntil([&] { return pending.isFinished(); }) ? pending.reply() : QDBusMessage();
    }
    QDBusMessage askMenu(const QString &method, const QVariantList &arguments) const
    {
        return ask(QStringLiteral("/MenuBar"), QStringLiteral("com.canonical.dbusmenu"), method, arguments);
    }

    QList<Kestrune::WireLayout> entries() const
    {
        const QDBusMessage reply = askMenu(QStringLiteral("GetLayout"), {0, -1, QStringList()});
        return qdbus_cast<Kestrune::WireLayout>(reply.arguments().value(1)).children;
    }
    std::optional<Kestrune::WireLayout> entry(const QString &label) const
    {
        for (const Kestrune::WireLayout &entry : entries()) {
            if (entry.properties.value(QStringLiteral("label")).toString() == label)
                return entry;
        }
        return {};
    }
    bool choose(int id) const
    {
        const auto answer = askMenu(QStringLiteral("Event"), {id, QStringLiteral("clicked"),
                                                              QVariant::fromValue(QDBusVariant(0)), 0U});
        return answer.type() == QDBusMessage::ReplyMessage;
    }
};
