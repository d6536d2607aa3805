#include "AppMenu.h"

#include "AppState.h"
#include "NotchKit/NotchStrings.h"
#include "NotchKit/Updates/Updater.h"

#include <QCoreApplication>

namespace Kestrune {

namespace {

StatusMenuEntry text(const char *english) { return {notchStrings(english), {}, false}; }

/// The Super key stands where other keyboards have a command key, as in the notch's hot key.
QStringList superAnd(const QString &key) { return {QStringLiteral("Super"), key}; }

QStringList hotKey()
{
    return {QStringLiteral("Control"), QStringLiteral("Alt"), QStringLiteral("Super"), QStringLiteral("n")};
}

} // namespace

AppMenu::AppMenu(AppState &app, Updater &updater, StatusItem &item, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_updater(updater)
    , m_item(item)
{
    connect(&app, &AppState::yieldingToFennivarChanged, this, &AppMenu::update);
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
                               [this] { m_app.toggle(); }, !paused, hotKey()};
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Settings…")),
                               [this] { m_app.openSettings(); }, true, superAnd(QStringLiteral("comma"))};
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Check for Updates…")),
                               [this] { m_updater.checkForUpdates(); }, m_updater.canCheckForUpdates()};
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Get more tools: Fennivar ↗")),
                               [this] { m_app.openSuitePage(); }};
    entries << StatusMenuEntry();
    entries << StatusMenuEntry{notchStrings(QT_TRANSLATE_NOOP("notch", "Quit Kestrune")),
                               [] { QCoreApplication::quit(); }, true, superAnd(QStringLiteral("q"))};
    return entries;
}

} // namespace Kestrune
