#include "PortalShortcut.h"

#include "Log.h"
#include "ShortcutTrigger.h"

#include <QDBusObjectPath>

#include <algorithm>

namespace Kestrune {

namespace {

QString listName() { return QStringLiteral("shortcuts"); }
QString sessionInterface() { return QStringLiteral("org.freedesktop.portal.Session"); }

} // namespace

PortalShortcut::PortalShortcut(const QDBusConnection &bus, const QString &portal,
                               const WantedShortcut &wanted, const ShortcutTimes &times, QObject *parent)
    : Shortcut(parent)
    , m_bus(bus)
    , m_portal(portal)
    , m_wanted(wanted)
    , m_times(times)
{
    PortalWire::registerTypes();
    m_flows.start(&PortalShortcut::bind, this);
}

PortalShortcut::~PortalShortcut()
{
    if (m_creating)
        m_creating->forget();
    PortalRequest::closeSession(m_bus, m_portal, m_session);
}

QCoro::Task<> PortalShortcut::bind()
{
    const QFuture<QDBusMessage> introducing = introduceProgram();
    const QDBusMessage introduced = co_await until(introducing);
    // It takes a name once for a connection, and that of a desktop entry only.
    if (introduced.type() == QDBusMessage::ErrorMessage)
        qCInfo(shortcutsLog, "the portal does not take the name %s: %s", qUtf8Printable(m_wanted.program),
               qUtf8Printable(introduced.errorMessage()));

    const QFuture<PortalAnswer> creating = createSession();
    const PortalAnswer created = co_await until(creating);
    m_session = created.response == 0U ? PortalRequest::session(created) : QString();
    if (m_session.isEmpty()) {
        Q_EMIT unavailable();
        co_return;
    }
    listen();

    const QFuture<PortalAnswer> binding = bindKey();
    const PortalAnswer bound = co_await until(binding);
    // Whether it is bound, its response does not tell: GNOME's is "ended" (2) when it is.
    const QFuture<PortalAnswer> listing = listKeys();
    const PortalAnswer listed = co_await until(listing);
    const auto keys = PortalWire::keys(listed.results.value(listName()));
    take(keys ? *keys : PortalWire::keys(bound.results.value(listName())).value_or(QList<PortalKey>()));
}

QFuture<QDBusMessage> PortalShortcut::introduceProgram()
{
    QDBusMessage call = QDBusMessage::createMethodCall(m_portal, PortalWire::object(),
                                                       QStringLiteral("org.freedesktop.host.portal.Registry"),
                                                       QStringLiteral("Register"));
    call << m_wanted.program << QVariantMap();
    return PortalWire::ask(m_bus, call, m_times.reply, this);
}

QFuture<PortalAnswer> PortalShortcut::createSession()
{
    m_creating = new PortalRequest(m_bus, m_portal, parent());
    return m_creating->send(QStringLiteral("CreateSession"), {},
                            {{QStringLiteral("session_handle_token"), PortalRequest::makeToken()}},
                            m_times.reply, m_times.reply);
}

QFuture<PortalAnswer> PortalShortcut::bindKey()
{
    const QVariantMap properties{{QStringLiteral("description"), m_wanted.description},
                                 {QStringLiteral("preferred_trigger"), m_wanted.keys.trigger()}};
    const QList<PortalKey> keys{{m_wanted.action, properties}};
    auto *request = new PortalRequest(m_bus, m_portal, this);
    return request->send(
        QStringLiteral("BindShortcuts"),
        {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(keys), QString()}, {},
        m_times.reply, m_times.choice);
}

QFuture<PortalAnswer> PortalShortcut::listKeys()
{
    auto *request = new PortalRequest(m_bus, m_portal, this);
    return request->send(QStringLiteral("ListShortcuts"), {QVariant::fromValue(QDBusObjectPath(m_session))},
                         {}, m_times.reply, m_times.reply);
}

void PortalShortcut::listen()
{
    const auto follow = [this](const char *name, const char *slot) {
        m_bus.connect(m_portal, PortalWire::object(), PortalWire::shortcuts(), QString::fromLatin1(name),
                      this, slot);
    };
    follow("Activated", SLOT(takeActivated(QDBusMessage)));
    follow("Deactivated", SLOT(takeDeactivated(QDBusMessage)));
    follow("ShortcutsChanged", SLOT(takeChanged(QDBusMessage)));
    m_bus.connect(m_portal, m_session, sessionInterface(), QStringLiteral("Closed"), this,
                  SLOT(takeClosed()));
}

bool PortalShortcut::isOurs(const QDBusMessage &signal) const
{
    return signal.arguments().value(0).value<QDBusObjectPath>().path() == m_session;
}

void PortalShortcut::takeActivated(const QDBusMessage &signal)
{
    if (isOurs(signal) && signal.arguments().value(1) == m_wanted.action)
        keyWentDown();
}

void PortalShortcut::takeDeactivated(const QDBusMessage &signal)
{
    if (isOurs(signal) && signal.arguments().value(1) == m_wanted.action)
        keyWentUp();
}

void PortalShortcut::takeChanged(const QDBusMessage &signal)
{
    const auto keys = PortalWire::keys(signal.arguments().value(1));
    if (isOurs(signal) && keys)
        take(*keys);
}

void PortalShortcut::takeClosed()
{
    qCInfo(shortcutsLog, "the portal has ended the session");
    m_session.clear();
    m_flows.end();
    setBinding({HotKeyBinding::State::unbound});
}

void PortalShortcut::take(const QList<PortalKey> &keys)
{
    using State = HotKeyBinding::State;
    const auto ours = std::ranges::find(keys, m_wanted.action, &PortalKey::id);
    if (ours == keys.cend()) {
        setBinding({State::unbound});
        return;
    }
    const QString trigger =
        ShortcutTrigger::readable(ours->properties.value(QStringLiteral("trigger_description")).toString());
    // A shortcut that no key triggers: the wanted one belongs to somebody else.
    setBinding({trigger.isEmpty() ? State::taken : State::chosen, trigger});
}

} // namespace Kestrune
