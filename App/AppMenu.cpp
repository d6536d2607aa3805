#include "AppMenu.h"

#include "AppState.h"
#include "NotchKit/NotchStrings.h"
#include "NotchKit/Updates/Updater.h"

#include <QCoreApplication>

namespace Kestrune {

namespace {

StatusMenuEntry text(const char *english) { return {notchStrings(english), {}, false}; }

/// Where it is held. Others, which the desktop has chosen, it tells in words of its own.
QStringList hotKey(AppState &app)
{
    const bool isHeld = app.controller().hotKeyBinding().state == HotKeyBinding::State::asked;
    return isHeld ? app.settings().hotKeys().menuWords() : QStringList();
}

} // namespace

AppMenu::AppMenu(AppState &app, Updater &updater, StatusItem &item, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_updater(updater)
    , m_item(item)
{
    connect(&app, &AppState::yieldingToFennivarChanged, this, &AppMenu::update);
    connect(&app.settings(), &NotchSettings::shortcutChanged, this, &AppMenu::update);
    connect(&app.controller(), &NotchController::hotKeyBindingChanged, this, &AppMenu::update);
    connect(&updater, &Updater::changed, this, &AppMenu::update);
    update();
}

void AppMenu::update() { m_item.setMenu(entries()); }

QList<StatusMenuEntry> AppMenu::entries() const
{
    QList<StatusMenuEntry> entries;
    const bool paused = m_app.yieldingToFennivar();
    if (paused) {
        entries << text(QT_TRANSLATE_NOOP("notch", "Fennivar’s notch is on, so Kestrune is paused."))
                << text(QT_TRANSLATE_NOOP("notch", "Turn off Notch in Fennivar to use Kestrune."))
                << StatusMenuEntry();
    }
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Open Notch")),
                               [this] { m_app.toggle(); }, !paused, hotKey(m_app)};
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Settings…")),
                               [this] { m_app.openSettings(); }};
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Check for Updates…")),
                               [this] { m_updater.checkForUpdates(); }, m_updater.canCheckForUpdates()};
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Get more tools: Fennivar ↗")),
                               [this] { m_app.openSuitePage(); }};
    entries << StatusMenuEntry();
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Quit Kestrune")),
                               [] { QCoreApplication::quit(); }};
    return entries;
}

} // namespace Kestrune
