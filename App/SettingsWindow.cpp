#include "SettingsWindow.h"

#include "AppState.h"
#include "NotchKit/Platform/Appearance.h"
#include "NotchKit/Updates/Updater.h"

namespace Kestrune {

SettingsWindow::SettingsWindow(QQmlEngine &engine, AppState &app, Updater &updater, Appearance &appearance)
    : FormWindow(engine, QStringLiteral("SettingsWindow"),
                 {{QStringLiteral("settings"), QVariant::fromValue(&app.settings())},
                  {QStringLiteral("controller"), QVariant::fromValue(&app.controller())},
                  {QStringLiteral("updater"), QVariant::fromValue(&updater)},
                  {QStringLiteral("appearance"), QVariant::fromValue(&appearance)},
                  {QStringLiteral("app"), QVariant::fromValue<QObject *>(&app)}})
{}

} // namespace Kestrune
