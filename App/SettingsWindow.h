#pragma once

#include "FormWindow.h"

namespace Kestrune {

class Appearance;
class AppState;
class Updater;

/// The settings window.
class SettingsWindow : public FormWindow
{
public:
    /// All outlive the object.
    SettingsWindow(QQmlEngine &engine, AppState &app, Updater &updater, Appearance &appearance);
};

} // namespace Kestrune
