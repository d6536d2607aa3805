#include "Desktop/Shortcuts/PortalHotKeys.h"
#include "Desktop/BusStandIn.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

namespace {

using State = HotKeyBinding::State;

/// The path as an argument of a call.
QVariant object(const QString &path) { return QVariant::fromValue(QDBusObjectPath(path)); }

/// A portal that answers each request at once.
struct Portal : BusStandIn
{
    uint response = 0;              ///< To BindShortcuts.
    std::optional<QString> trigger; ///< Of the shortcut in the list; nothing: it is not in there.
    bool knowsShortcuts = true;     ///< It has the interface.
    bool hangs = false;
    std::function<void()> hold; ///< Answers CreateSession, where the test wants to do that itself.
    bool holds = false;
    QVariantMap wanted; ///< What BindShortcuts asked for.
    QStringList sessions;

    explicit Portal(const std::optional<QString> &bound = {})
        : BusStandIn(u"org.freedesktop.portal.Desktop"_s)
        , trigger(bound)
    {
        PortalWire::registerTypes();
    }

    bool appear()
    {
        return ServiceStandIn::appear([this](const QDBusMessage &call) { return answer(call); });
    }

    QVariant list() const
    {
        QList<PortalKey> keys{{u"other"_s, {{u"trigger_description"_s, u"F1"_s}}}};
        if (trigger)
            keys.append({u"toggle"_s, {{u"trigger_description"_s, *trigger}}});
        return QVariant::fromValue(keys);
    }

    void tell(const QString &member, const QVariantList &arguments)
    {
        signal(PortalWire::object(), PortalWire::shortcuts(), member, arguments);
    }

    /// The key of that shortcut goes down or up, as the portal tells it.
    void key(const QString &member, const QString &session, const QString &id = u"toggle"_s)
    {
        tell(member, {object(session), id, 0ULL, QVariantMap()});
    }

    qsizetype count(const QString &member) const
    {
        return std::ranges::count(calls, member, &QDBusMessage::member);
    }

private:
    std::optional<QDBusMessage> answer(const QDBusMessage &call)
    {
        if (hangs)
            return std::nullopt;
        if (call.interface() == "org.freedesktop.portal.Session"_L1 ||
            call.interface() == "org.freedesktop.host.portal.Registry"_L1)
            return call.createReply();
        if (!knowsShortcuts)
            return call.createErrorReply(QDBusError::UnknownInterface, u"no such interface"_s);
        const QString token =
            qdbus_cast<QVariantMap>(call.arguments().constLast()).value(u"handle_token"_s).toString();
        const QString handle =
            PortalWire::object() + u"/request/%1/%2"_s.arg(call.service().mid(1).replace(u'.', u'_'), token);
        const auto respond = [this, handle, call] { respondTo(call, handle); };
        if (holds && call.member() == "CreateSession"_L1)
            hold = respond;
        else
            respond();
        return call.createReply(object(handle));
    }

    void respondTo(const QDBusMessage &call, const QString &handle)
    {
        uint code = 0;
        QVariantMap results;
        if (call.member() == "CreateSession"_L1) {
            sessions.append(PortalWire::object() + u"/session/s%1"_s.arg(sessions.size()));
            results.insert(u"session_handle"_s, sessions.constLast());
        } else if (call.member() == "BindShortcuts"_L1) {
            code = response;
            wanted = qdbus_cast<QList<PortalKey>>(call.arguments().at(1)).value(0).properties;
        } else {
            results.insert(u"shortcuts"_s, list());
        }
        signal(handle, u"org.freedesktop.portal.Request"_s, u"Response"_s, {code, results});
    }
};

/// The service of KDE, which holds `key` whatever it is asked for.
struct Accel : ServiceStandIn
{
    int key = 0;

    explicit Accel(const QString &bus)
        : ServiceStandIn(bus, u"org.kde.kglobalaccel"_s)
    {}

    bool appear()
    {
        return ServiceStandIn::appear([this](const QDBusMessage &call) {
            if (call.member() == "getComponent"_L1)
                return std::optional(call.createReply(object(u"/component/k"_s)));
            if (call.member() == "setShortcut"_L1)
                return std::optional(call.createReply(QVariant::fromValue(QList<int>{key})));
            return std::optional(call.createReply());
        });
    }

    void tell(const QString &member)
    {
        signal(u"/component/k"_s, u"org.kde.kglobalaccel.Component"_s, member,
               {u"example.kestrune.Kestrune"_s, u"toggle"_s, 0LL});
    }
};

/// The hot keys on the stand-ins' bus, and all that they told.
struct Keys
{
    PortalHotKeys port;
    QList<HotKeyBinding> bindings;
    QList<quint32> pressed;

    explicit Keys(const QDBusConnection &bus, const ShortcutTimes &times = {})
        : port(bus, times)
    {
        port.installHandler([this](HotKeyIdentity identity) { pressed.append(identity.id); });
        port.installBindingHandler(
            [this](HotKeyIdentity, const HotKeyBinding &binding) { bindings.append(binding); });
    }

    bool ask(quint32 id) { return port.registerHotKey(45, 256 + 2048 + 4096, {7, id}); }
    void drop(quint32 id) { port.unregisterHotKey({7, id}); }
    HotKeyBinding last() const { return bindings.isEmpty() ? HotKeyBinding() : bindings.constLast(); }
};

} // namespace

/// The hot keys that a desktop is asked for, against stand-ins of its services.
class PortalHotKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListSaysWhatIsBound_data()
    {
        const auto row = columns<uint, std::optional<QString>, State, QString>();
        row("bound", 0, u"Meta+Ctrl+Alt+N"_s, State::chosen, u"Meta+Ctrl+Alt+N"_s);
        row("bound, said to be ended", 2, u"Press <Control><Alt><Super>n"_s, State::chosen,
            u"Ctrl+Alt+Super+N"_s);
        row("the user's own choice", 0, u" Strg+Umschalt+ñ"_s, State::chosen, u"Strg+Umschalt+ñ"_s);
        row("refused", 1, std::nullopt, State::unbound, "");
        row("ended", 2, std::nullopt, State::unbound, "");
        row("without a key", 0, u""_s, State::taken, "");
        row("bound at great length", 0, u"F\n\u0007"_s + QString(1000, u'x'), State::chosen,
            u"F "_s + QString(77, u'x'));
    }

    void theListSaysWhatIsBound()
    {
        const auto [response, trigger, state, told] = fetched<uint, std::optional<QString>, State, QString>();
        Portal portal(trigger);
        portal.response = response;
        QVERIFY(portal.appear());
        Keys keys(portal.bus());
        QVERIFY(keys.ask(1));
        QCOMPARE(keys.port.firstBinding(), HotKeyBinding());
        QTRY_COMPARE(keys.last(), (HotKeyBinding{state, told}));
        QCOMPARE(portal.called().constFirst(),
                 PortalWire::object() + u" org.freedesktop.host.portal.Registry.Register"_s);
        QCOMPARE(portal.calls.constFirst().arguments().value(0), u"example.kestrune.Kestrune"_s);
        QCOMPARE(portal.wanted.value(u"preferred_trigger"_s), u"CTRL+ALT+LOGO+n"_s);
        QCOMPARE(portal.wanted.value(u"description"_s), u"Open Notch"_s);

        portal.trigger = u"F7"_s;
        portal.tell(u"ShortcutsChanged"_s, {object(u"/other"_s), QVariant::fromValue(portal.list())});
        portal.tell(u"ShortcutsChanged"_s, {object(portal.sessions.at(0)), portal.list()});
        QTRY_COMPARE(keys.last(), (HotKeyBinding{State::chosen, u"F7"_s}));
        QCOMPARE(keys.bindings.size(), 2);
    }

    void withoutAPortalForShortcuts_data()
    {
        columns<QString, int, State, QString>();
        for (const auto *portal : {"none", "hangs", "others"}) {
            QTest::addRow("portal %s", portal)
                << QString::fromLatin1(portal) << -1 << State::unbound << QString();
            QTest::addRow("portal %s, KDE's own service", portal)
                << QString::fromLatin1(portal) << QKeyCombination(Qt::META | Qt::Key_F5).toCombined()
                << State::chosen << u"Meta+F5"_s;
        }
        QTest::newRow("KDE's own service has no key") << u"none"_s << 0 << State::taken << QString();
    }

    void withoutAPortalForShortcuts()
    {
        const auto [kind, key, state, told] = fetched<QString, int, State, QString>();
        Portal portal;
        portal.hangs = kind == "hangs"_L1;
        portal.knowsShortcuts = false;
        Accel accel(portal.address());
        accel.key = key;
        QVERIFY((kind == "none"_L1 || portal.appear()) && (key < 0 || accel.appear()));
        // Only who hangs is waited for in vain.
        Keys keys(portal.bus(), {.reply = std::chrono::milliseconds(portal.hangs ? 300 : 60'000)});
        QVERIFY(keys.ask(1));
        QTRY_COMPARE(keys.last(), (HotKeyBinding{state, told}));
        if (key < 0)
            return;
        const QStringList action{u"example.kestrune.Kestrune"_s, u"toggle"_s, u"Kestrune"_s, u"Open Notch"_s};
        QCOMPARE(accel.calls.constLast().arguments().value(0), action);
        QCOMPARE(qdbus_cast<QList<int>>(accel.calls.constLast().arguments().value(1)),
                 QList<int>{QKeyCombination(Qt::CTRL | Qt::ALT | Qt::META | Qt::Key_N).toCombined()});
        for (const auto *member : {"globalShortcutPressed", "globalShortcutPressed", "globalShortcutReleased",
                                   "globalShortcutPressed"})
            accel.tell(QLatin1String(member));
        QTRY_COMPARE(keys.pressed, (QList<quint32>{1, 1}));
        keys.drop(1);
        QTRY_COMPARE(accel.called().constLast(), u"/kglobalaccel org.kde.KGlobalAccel.setInactive"_s);
    }

    void aPressIsToldOnce()
    {
        Portal portal(u"F8"_s);
        QVERIFY(portal.appear());
        Keys keys(portal.bus());
        QVERIFY(keys.ask(4));
        QTRY_COMPARE(keys.last().trigger, u"F8"_s);
        const QString session = portal.sessions.at(0);
        portal.key(u"Activated"_s, u"/other"_s);
        portal.key(u"Activated"_s, session, u"other"_s);
        portal.tell(u"Activated"_s, {u"of another kind"_s});
        for (int i = 0; i < 3; ++i) // It repeats while it is held down.
            portal.key(u"Activated"_s, session);
        portal.key(u"Deactivated"_s, session);
        portal.key(u"Activated"_s, session);
        QTRY_COMPARE(keys.pressed, (QList<quint32>{4, 4}));
    }

    void offAndOnAgain()
    {
        Portal portal(u"F8"_s);
        QVERIFY(portal.appear());
        Keys keys(portal.bus());
        for (quint32 id = 1; id <= 3; ++id) {
            QVERIFY(keys.ask(id));
            QTRY_COMPARE(keys.bindings.size(), qsizetype(id));
            const QString session = portal.sessions.constLast();
            portal.key(u"Activated"_s, session);
            QTRY_COMPARE(keys.pressed.size(), qsizetype(id));
            QCOMPARE(keys.pressed.constLast(), id);
            keys.drop(id);
            QTRY_COMPARE(portal.called().constLast(), session + u" org.freedesktop.portal.Session.Close"_s);
            portal.key(u"Activated"_s, session); // It was on its way.
        }
        QCOMPARE(portal.sessions.size(), 3);
        keys.drop(3);
        QCOMPARE(keys.pressed.size(), 3);
    }

    void offBeforeItWasBound()
    {
        Portal portal(u"F8"_s);
        portal.holds = true;
        QVERIFY(portal.appear());
        Keys keys(portal.bus());
        QVERIFY(keys.ask(1));
        QTRY_VERIFY(portal.hold);
        keys.drop(1);
        portal.hold();
        QTRY_COMPARE(portal.called().constLast(),
                     portal.sessions.at(0) + u" org.freedesktop.portal.Session.Close"_s);
        QCOMPARE(portal.count(u"BindShortcuts"_s), 0);
        QVERIFY(keys.bindings.isEmpty());
    }

    void aPortalThatComesGoesAndEndsTheSession()
    {
        Portal portal(u"F8"_s);
        Keys keys(portal.bus());
        QVERIFY(keys.ask(1));
        const HotKeyBinding bound{State::chosen, u"F8"_s};
        const HotKeyBinding unbound{State::unbound};
        QTRY_COMPARE(keys.bindings, QList{unbound});
        QVERIFY(portal.appear());
        QTRY_COMPARE(keys.bindings, (QList{unbound, bound}));
        QVERIFY(portal.leave());
        QTRY_COMPARE(keys.bindings, (QList{unbound, bound, unbound}));
        QVERIFY(portal.appear());
        QTRY_COMPARE(keys.bindings, (QList{unbound, bound, unbound, bound}));
        QCOMPARE(portal.sessions.size(), 2);
        portal.key(u"Activated"_s, portal.sessions.at(0));
        portal.key(u"Activated"_s, portal.sessions.at(1));
        QTRY_COMPARE(keys.pressed, QList<quint32>{1});

        portal.signal(portal.sessions.at(1), u"org.freedesktop.portal.Session"_s, u"Closed"_s,
                      {QVariantMap()});
        QTRY_COMPARE(keys.last(), unbound);
    }

    void noBus()
    {
        Keys keys{QDBusConnection(QString())};
        QVERIFY(keys.ask(1));
        QTRY_COMPARE(keys.last(), HotKeyBinding{State::unbound});
        keys.drop(1);
    }
};

REGISTER_TEST(PortalHotKeysTest);
#include "PortalHotKeysTest.moc"
