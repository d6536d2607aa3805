#pragma once

#include "NotchKit/Platform/LoginItem.h"
#include "SettingsKeys.h"

namespace Kestrune {

/// The domain of the program's own settings.
QString standardDomain();

/// The keys that the command line knows beside the notch's own settings: "cameraHousings", which describes
/// the camera housing of an output, "calendarSource" and
/// "calendarFolder", where the calendars are, and "launchAtLogin".
QStringList standardExtraKeys();

/// Access to them. `defaults` and `loginItem` outlive the result. A running program passes what must
/// happen after a change of each.
QMap<QString, SettingsKeys::Extra> standardExtras(UserDefaults &defaults, LoginItem &loginItem,
                                                  const std::function<void()> &housingsChanged = {},
                                                  const std::function<void(bool)> &setLaunchAtLogin = {});

} // namespace Kestrune
