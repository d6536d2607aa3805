#pragma once

#include "FormWindow.h"

namespace Kestrune {

class Appearance;
class Updater;

/// What the look for an update came to. It opens when the updater wants attention.
class UpdateWindow : public FormWindow
{
public:
    /// All outlive the object.
    UpdateWindow(QQmlEngine &engine, Updater &updater, Appearance &appearance);
};

} // namespace Kestrune
