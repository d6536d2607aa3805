#pragma once

#include "NotchKit/Platform/HotKeys.h"
#include "PortalWire.h"
#include "Shortcut.h"

#include <QDBusServiceWatcher>

#include <memory>
#include <vector>

namespace Kestrune {

/// Hot keys where programs cannot take keys for themselves: the desktop is asked for them, through its portal
/// for global shortcuts, or where it has none, through KDE's own service. The user may choose other keys
/// there. Nothing here waits, and nothing is asked before the first registration.
class PortalHotKeys : public QObject, public HotKeys
{
    Q_OBJECT

public:
    /// The connection should serve nothing else: the portal knows it as the program's from the first call on.
    explicit PortalHotKeys(const QDBusConnection &bus, const ShortcutTimes &times = {});
    ~PortalHotKeys() override;

    void installHandler(Handler handler) override { m_handler = std::move(handler); }
    void installBindingHandler(BindingHandler handler) override { m_bindingHandler = std::move(handler); }
    /// True at once; what comes of it, the handler of bindings is told.
    bool registerHotKey(quint32 keyCode, quint32 modifiers, HotKeyIdentity identity) override;
    HotKeyBinding firstBinding() const override { return {}; }
    void unregisterHotKey(HotKeyIdentity identity) override;

private:
    struct Registration
    {
        HotKeyIdentity identity;
        WantedShortcut wanted;
        std::unique_ptr<Shortcut> shortcut; ///< Null while there is no service to ask.
    };

    void start();
    void findPortal();
    void takePortal(const QString &owner);
    void bindByPortal(Registration &registration);
    void bindByAccel(Registration &registration);
    void giveUp(Registration &registration);
    void follow(Registration &registration, void (PortalHotKeys::*otherwise)(Registration &));
    void report(HotKeyIdentity identity, const HotKeyBinding &binding);
    Registration *find(HotKeyIdentity identity);

    QDBusConnection m_bus;
    ShortcutTimes m_times;
    Handler m_handler;
    BindingHandler m_bindingHandler;
    std::unique_ptr<QDBusServiceWatcher> m_watcher; ///< From the first registration on.
    bool m_searching = false;                       ///< Whether there is a portal is being asked.
    QString m_portal;                               ///< Its unique name; empty: there is none.
    std::vector<Registration> m_registrations;
};

} // namespace Kestrune
