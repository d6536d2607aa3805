#include "EndToEnd/Wayland/InputDevices.h"
#include "Support/TestRegistry.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>

#include <linux/input-event-codes.h>

namespace {

/// An object of one of Mutter's services.
class MutterObject
{
public:
    MutterObject(const QDBusConnection &bus, const QString &service, const QString &suffix, QString path)
        : m_bus(bus)
        , m_service(u"org.gnome.Mutter."_s + service)
        , m_interface(m_service + suffix)
        , m_path(std::move(path))
    {}

    /// The first value of the answer.
    QVariant call(const QString &method, const QVariantList &arguments = {}) const
    {
        return ask(m_interface, method, arguments);
    }
    QVariant property(const QString &name) const
    {
        return ask(u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {m_interface, name})
            .value<QDBusVariant>()
            .variant();
    }

private:
    QVariant ask(const QString &interface, const QString &method, const QVariantList &arguments) const
    {
        auto message = QDBusMessage::createMethodCall(m_service, m_path, interface, method);
        message.setArguments(arguments);
        const QDBusMessage answer = m_bus.call(message);
        if (answer.type() == QDBusMessage::ErrorMessage)
            qWarning("%s: %s", qPrintable(method), qPrintable(answer.errorMessage()));
        return answer.arguments().value(0);
    }

    QDBusConnection m_bus;
    QString m_service;
    QString m_interface;
    QString m_path;
};

QString pathOf(const QVariant &answer) { return answer.value<QDBusObjectPath>().path(); }

/// The pointer goes to a place on the first display, which is recorded for that alone.
class RemoteDesktop : public InputDevices
{
public:
    explicit RemoteDesktop(const QDBusConnection &bus)
        : m_session(bus, u"RemoteDesktop"_s, u".Session"_s,
                    pathOf(MutterObject(bus, u"RemoteDesktop"_s, {}, u"/org/gnome/Mutter/RemoteDesktop"_s)
                               .call(u"CreateSession"_s)))
    {
        const MutterObject casts(bus, u"ScreenCast"_s, {}, u"/org/gnome/Mutter/ScreenCast"_s);
        const QVariantMap together{{u"remote-desktop-session-id"_s, m_session.property(u"SessionId"_s)}};
        const MutterObject cast(bus, u"ScreenCast"_s, u".Session"_s,
                                pathOf(casts.call(u"CreateSession"_s, {together})));
        m_display = pathOf(cast.call(u"RecordMonitor"_s, {u"Meta-0"_s, QVariantMap()}));
        m_session.call(u"Start"_s);
        // A device is there from its first use on, and what is used at once gets lost.
        for (const bool down : {true, false})
            key(KEY_LEFTSHIFT, down);
    }

    bool areReady() const override { return !m_display.isEmpty(); }

    void move(QPoint place, QSize) override
    {
        m_session.call(u"NotifyPointerMotionAbsolute"_s, {m_display, double(place.x()), double(place.y())});
    }
    void push(QPoint by) override
    {
        m_session.call(u"NotifyPointerMotionRelative"_s, {double(by.x()), double(by.y())});
    }
    void button(bool down) override { m_session.call(u"NotifyPointerButton"_s, {BTN_LEFT, down}); }
    void key(int code, bool down) final
    {
        m_session.call(u"NotifyKeyboardKeycode"_s, {static_cast<uint>(code), down});
    }

private:
    MutterObject m_session;
    QString m_display;
};

} // namespace

std::unique_ptr<InputDevices> makeRemoteDesktop(const QDBusConnection &bus)
{
    return std::make_unique<RemoteDesktop>(bus);
}
