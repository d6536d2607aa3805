#include "PortalHotKeys.h"

#include "AccelShortcut.h"
#include "Desktop/Bus/BusCall.h"
#include "Log.h"
#include "MakePortalHotKeys.h"
#include "PortalShortcut.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace Kestrune {

Q_LOGGING_CATEGORY(shortcutsLog, "kestrune.shortcuts", QtWarningMsg)

namespace {

QString connectionName() { return QStringLiteral("kestrune.shortcuts"); }

/// The hot keys with the connection that is theirs.
class OwnConnection
{
public:
    OwnConnection()
        : m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName()))
    {}
    ~OwnConnection() { QDBusConnection::disconnectFromBus(connectionName()); }
    Q_DISABLE_COPY_MOVE(OwnConnection)

    const QDBusConnection &bus() const { return m_bus; }

private:
    QDBusConnection m_bus;
};

class ConnectedHotKeys : private OwnConnection, public PortalHotKeys
{
public:
    ConnectedHotKeys()
        : PortalHotKeys(OwnConnection::bus())
    {}
};

QDBusMessage makeDaemonCall(const QString &method, const QVariantList &arguments)
{
    const QString daemon = QStringLiteral("org.freedesktop.DBus");
    QDBusMessage call =
        QDBusMessage::createMethodCall(daemon, QStringLiteral("/org/freedesktop/DBus"), daemon, method);
    call.setArguments(arguments);
    return call;
}

} // namespace

PortalHotKeys::PortalHotKeys(const QDBusConnection &bus, const ShortcutTimes &times)
    : m_bus(bus)
    , m_times(times)
{}

PortalHotKeys::~PortalHotKeys() = default;

bool PortalHotKeys::registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity)
{
    const bool forPrompter = identity.purpose == HotKeyPurpose::prompter;
    const WantedShortcut wanted{QStringLiteral("example.kestrune.Kestrune"),
                                forPrompter ? QStringLiteral("prompter") : QStringLiteral("toggle"),
                                //: What a hot key does, in the desktop's settings.
                                forPrompter
                                    ? QCoreApplication::translate("notch", "Play or pause the teleprompter")
                                    : QCoreApplication::translate("notch", "Open Notch"),
                                {keyCode, modifiers}};
    Registration &registration = m_registrations.emplace_back(Registration{identity, wanted, nullptr});
    if (!m_bus.isConnected()) // Calls would stay without an answer.
        QMetaObject::invokeMethod(
            this, [this, identity] { report(identity, {HotKeyBinding::State::unbound}); },
            Qt::QueuedConnection);
    else if (!m_watcher)
        start();
    else if (!m_portal.isEmpty())
        bindByPortal(registration);
    else if (!m_searching)
        bindByAccel(registration);
    return true;
}

void PortalHotKeys::unregisterHotKey(HotKeyIdentity identity)
{
    std::erase_if(m_registrations,
                  [&](const Registration &registration) { return registration.identity == identity; });
}

void PortalHotKeys::start()
{
    m_watcher = std::make_unique<QDBusServiceWatcher>(PortalWire::service(), m_bus,
                                                      QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_watcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) { takePortal(owner); });
    findPortal();
}

void PortalHotKeys::findPortal()
{
    m_searching = true;
    // One that does not run yet is started; that it is there then, the watcher tells as well.
    const auto limit = static_cast<int>(m_times.reply.count());
    callBus(m_bus, makeDaemonCall(QStringLiteral("StartServiceByName"), {PortalWire::service(), 0U}), limit,
            this, [this, limit](const QDBusMessage &) {
                callBus(m_bus, makeDaemonCall(QStringLiteral("GetNameOwner"), {PortalWire::service()}), limit,
                        this, [this](const QDBusMessage &reply) {
                            m_searching = false;
                            const bool there = reply.type() == QDBusMessage::ReplyMessage;
                            takePortal(there ? reply.arguments().value(0).toString() : QString());
                        });
            });
}

void PortalHotKeys::takePortal(const QString &owner)
{
    if (!owner.isEmpty() && owner == m_portal)
        return;
    m_portal = owner;
    for (Registration &registration : m_registrations) {
        if (!owner.isEmpty())
            bindByPortal(registration);
        else if (!m_searching)
            bindByAccel(registration);
    }
}

void PortalHotKeys::bindByPortal(Registration &registration)
{
    registration.shortcut =
        std::make_unique<PortalShortcut>(m_bus, m_portal, registration.wanted, m_times, this);
    follow(registration, &PortalHotKeys::bindByAccel);
}

void PortalHotKeys::bindByAccel(Registration &registration)
{
    registration.shortcut = std::make_unique<AccelShortcut>(m_bus, registration.wanted, m_times, this);
    follow(registration, &PortalHotKeys::giveUp);
}

void PortalHotKeys::follow(Registration &registration, void (PortalHotKeys::*otherwise)(Registration &))
{
    const HotKeyIdentity identity = registration.identity;
    Shortcut *const shortcut = registration.shortcut.get();
    connect(shortcut, &Shortcut::pressed, this, [this, identity] {
        if (m_handler)
            m_handler(identity);
    });
    connect(shortcut, &Shortcut::bindingChanged, this,
            [this, identity](const HotKeyBinding &binding) { report(identity, binding); });
    // Queued, as the object that tells it goes; another may have taken its place by then.
    const auto fail = [this, identity, otherwise, teller = QPointer(shortcut)] {
        Registration *const failed = find(identity);
        if (failed && teller && failed->shortcut.get() == teller)
            (this->*otherwise)(*failed);
    };
    connect(shortcut, &Shortcut::unavailable, this, fail, Qt::QueuedConnection);
}

void PortalHotKeys::giveUp(Registration &registration)
{
    registration.shortcut.reset();
    report(registration.identity, {HotKeyBinding::State::unbound});
}

void PortalHotKeys::report(HotKeyIdentity identity, const HotKeyBinding &binding)
{
    qCInfo(shortcutsLog, "the shortcut's state is %d, its trigger %s", static_cast<int>(binding.state),
           qUtf8Printable(binding.trigger));
    if (m_bindingHandler)
        m_bindingHandler(identity, binding);
}

PortalHotKeys::Registration *PortalHotKeys::find(HotKeyIdentity identity)
{
    const auto found = std::ranges::find(m_registrations, identity, &Registration::identity);
    return found == m_registrations.end() ? nullptr : &*found;
}

std::unique_ptr<HotKeys> makePortalHotKeys() { return std::make_unique<ConnectedHotKeys>(); }

} // namespace Kestrune
