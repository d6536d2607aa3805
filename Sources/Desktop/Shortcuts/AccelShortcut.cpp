#include "AccelShortcut.h"

#include "Log.h"
#include "ShortcutTrigger.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QKeySequence>

#include <algorithm>

namespace Kestrune {

namespace {

constexpr uint kSetPresent = 2; ///< The key is to be held; without a further flag a stored choice wins.

QDBusMessage makeAccelCall(const QString &method, const QVariantList &arguments)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(AccelShortcut::service(), QStringLiteral("/kglobalaccel"),
                                       QStringLiteral("org.kde.KGlobalAccel"), method);
    call.setAutoStartService(false);
    call.setArguments(arguments);
    return call;
}

QList<int> keysOf(const QDBusMessage &message, int index)
{
    const QVariant value = message.arguments().value(index);
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return value.value<QList<int>>();
    const auto argument = value.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String("ai") ? qdbus_cast<QList<int>>(argument)
                                                              : QList<int>();
}

} // namespace

QString AccelShortcut::service() { return QStringLiteral("org.kde.kglobalaccel"); }

AccelShortcut::AccelShortcut(const QDBusConnection &bus, const WantedShortcut &wanted,
                             const ShortcutTimes &times, QObject *parent)
    : Shortcut(parent)
    , m_bus(bus)
    , m_wanted(wanted)
    , m_times(times)
{
    m_flows.start(&AccelShortcut::bind, this);
}

AccelShortcut::~AccelShortcut()
{
    if (m_registered)
        m_bus.send(makeAccelCall(QStringLiteral("setInactive"), {action()}));
}

/// The ids of program and action, and both for the eyes of the user.
QStringList AccelShortcut::action() const
{
    return {m_wanted.program, m_wanted.action, QStringLiteral("Kestrune"), m_wanted.description};
}

QFuture<QDBusMessage> AccelShortcut::ask(const QString &method, const QVariantList &arguments)
{
    return PortalWire::ask(m_bus, makeAccelCall(method, arguments), m_times.reply, this);
}

QCoro::Task<> AccelShortcut::bind()
{
    m_registered = true;
    const QFuture<QDBusMessage> registering = ask(QStringLiteral("doRegister"), {action()});
    const QDBusMessage registered = co_await until(registering);
    if (registered.type() != QDBusMessage::ReplyMessage) {
        qCInfo(shortcutsLog, "no service of KDE: %s", qUtf8Printable(registered.errorName()));
        m_registered = false;
        Q_EMIT unavailable();
        co_return;
    }
    const QFuture<QDBusMessage> finding = ask(QStringLiteral("getComponent"), {m_wanted.program});
    const QDBusMessage found = co_await until(finding);
    listen(registered.service(), found.arguments().value(0).value<QDBusObjectPath>().path());

    const int key = m_wanted.keys.qtKey();
    const QVariantList arguments{action(), QVariant::fromValue(QList<int>{key}), kSetPresent};
    const QFuture<QDBusMessage> setting = ask(QStringLiteral("setShortcut"), arguments);
    const QDBusMessage set = co_await until(setting);
    if (set.type() == QDBusMessage::ReplyMessage)
        take(keysOf(set, 0));
    else
        setBinding({HotKeyBinding::State::unbound});
}

void AccelShortcut::listen(const QString &sender, const QString &component)
{
    if (component.isEmpty())
        return;
    const auto follow = [&](const QString &object, const char *interface, const char *name,
                            const char *slot) {
        m_bus.connect(sender, object, QString::fromLatin1(interface), QString::fromLatin1(name), this, slot);
    };
    constexpr auto kComponent = "org.kde.kglobalaccel.Component";
    follow(component, kComponent, "globalShortcutPressed", SLOT(takePressed(QDBusMessage)));
    follow(component, kComponent, "globalShortcutReleased", SLOT(takeReleased(QDBusMessage)));
    follow(QStringLiteral("/kglobalaccel"), "org.kde.KGlobalAccel", "yourShortcutGotChanged",
           SLOT(takeChanged(QDBusMessage)));
}

bool AccelShortcut::isOurs(const QDBusMessage &signal) const
{
    return signal.arguments().mid(0, 2) == QVariantList{m_wanted.program, m_wanted.action};
}

void AccelShortcut::takePressed(const QDBusMessage &signal)
{
    if (isOurs(signal))
        keyWentDown();
}

void AccelShortcut::takeReleased(const QDBusMessage &signal)
{
    if (isOurs(signal))
        keyWentUp();
}

void AccelShortcut::takeChanged(const QDBusMessage &signal)
{
    if (signal.arguments().value(0).toStringList().mid(0, 2) == action().mid(0, 2))
        take(keysOf(signal, 1));
}

void AccelShortcut::take(const QList<int> &keys)
{
    const auto key = std::ranges::find_if(keys, [](int candidate) { return candidate != 0; });
    if (key == keys.cend()) {
        setBinding({HotKeyBinding::State::taken});
        return;
    }
    const QString trigger = QKeySequence(*key).toString(QKeySequence::NativeText);
    setBinding({HotKeyBinding::State::chosen, ShortcutTrigger::readable(trigger)});
}

} // namespace Kestrune
