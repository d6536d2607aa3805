#pragma once

#include "Async/Scope.h"
#include "PortalWire.h"
#include "Shortcut.h"

namespace Kestrune {

/// A shortcut of KDE's own service, org.kde.kglobalaccel, where it runs already. What the user chose in the
/// desktop's settings is kept there, and wins over what is asked for.
class AccelShortcut : public Shortcut
{
    Q_OBJECT

public:
    /// Asks for it at once.
    AccelShortcut(const QDBusConnection &bus, const WantedShortcut &wanted, const ShortcutTimes &times,
                  QObject *parent);
    ~AccelShortcut() override;

    static QString service();

private Q_SLOTS:
    void takePressed(const QDBusMessage &signal);
    void takeReleased(const QDBusMessage &signal);
    void takeChanged(const QDBusMessage &signal);

private:
    QCoro::Task<> bind();
    QFuture<QDBusMessage> ask(const QString &method, const QVariantList &arguments);
    QStringList action() const;
    bool isOurs(const QDBusMessage &signal) const;
    void listen(const QString &sender, const QString &component);
    void take(const QList<int> &keys);

    QDBusConnection m_bus;
    WantedShortcut m_wanted;
    ShortcutTimes m_times;
    bool m_registered = false;
    Scope m_flows;
};

} // namespace Kestrune
