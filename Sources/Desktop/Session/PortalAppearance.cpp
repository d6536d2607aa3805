#include "PortalAppearance.h"

#include "Desktop/Bus/BusCall.h"
#include "Log.h"

#include <QGuiApplication>
#include <QPalette>

namespace Kestrune {

namespace {

constexpr int kAppearanceTimeout = 5000; // ms, for a portal that the question starts.

/// The portal's values for its colour scheme; 0 is no preference.
constexpr uint kDark = 1;
constexpr uint kLight = 2;

QString service() { return QStringLiteral("org.freedesktop.portal.Desktop"); }
QString object() { return QStringLiteral("/org/freedesktop/portal/desktop"); }
QString interface() { return QStringLiteral("org.freedesktop.portal.Settings"); }
QString space() { return QStringLiteral("org.freedesktop.appearance"); }
QString key() { return QStringLiteral("color-scheme"); }

bool platformIsDark() { return QGuiApplication::palette().color(QPalette::Window).lightness() < 128; }

} // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &bus, QObject *parent)
    : Appearance(parent)
{
    QDBusConnection connection = bus;
    if (connection.isConnected())
        ask(connection);
}

void PortalAppearance::ask(QDBusConnection &bus)
{
    bus.connect(service(), object(), interface(), QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(service(), object(), interface(), QStringLiteral("Read"));
    question << space() << key();
    callBus(bus, question, kAppearanceTimeout, this, [this](const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ReplyMessage)
            take(reply.arguments().value(0));
        else
            qCInfo(sessionLog, "the portal does not tell the appearance: %s",
                   qUtf8Printable(reply.errorName()));
    });
}

bool PortalAppearance::isDark() const { return m_dark ? *m_dark : platformIsDark(); }

void PortalAppearance::settingChanged(const QString &changedSpace, const QString &changedKey,
                                      const QDBusVariant &value)
{
    if (changedSpace == space() && changedKey == key())
        take(value.variant());
}

void PortalAppearance::take(QVariant scheme)
{
    // The older of the portal's two questions wraps its answer twice.
    while (scheme.metaType() == QMetaType::fromType<QDBusVariant>())
        scheme = scheme.value<QDBusVariant>().variant();
    const bool before = isDark();
    const uint value = scheme.toUInt();
    m_dark = value == kDark ? std::optional(true) : value == kLight ? std::optional(false) : std::nullopt;
    if (isDark() != before)
        Q_EMIT darkChanged();
}

} // namespace Kestrune
