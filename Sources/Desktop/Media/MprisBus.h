#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QHash>
#include <QStringList>

#include <chrono>

namespace Kestrune {

/// Calls the media players over a connection of its own, made by the first call, and waits for the answers,
/// but for none of them longer than a moment. A player that has not answered gets no further question until
/// it has, or until the bus has given it up, and is not waited for again; what it answers late counts at the
/// next look. Belongs to one thread at a time, which need not be the one that made it.
class MprisBus
{
public:
    /// The longest that any call here takes.
    static constexpr std::chrono::milliseconds kPatience{400};

    /// The session bus, or the one at `address`.
    explicit MprisBus(const QString &address = {});
    ~MprisBus();
    Q_DISABLE_COPY_MOVE(MprisBus)

    /// The bus names of the players that run, in their alphabetical order.
    QStringList names();

    /// What the players of those names answer when they are asked for their properties: a reply or an error
    /// each. Those that do not answer are left out.
    QHash<QString, QDBusMessage> properties(const QStringList &busNames);

    /// Calls a method of a player.
    void call(const QString &busName, const QString &method, const QVariantList &arguments = {});

private:
    QDBusConnection &bus();

    QString m_address;
    QString m_connectionName;
    QDBusConnection m_bus{QString()};
    QHash<QString, QDBusPendingCall> m_unanswered; ///< By bus name.
};

} // namespace Kestrune
