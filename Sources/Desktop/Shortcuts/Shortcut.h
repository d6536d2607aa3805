#pragma once

#include "NotchKit/Platform/HotKeys.h"
#include "NotchKit/Platform/KeyCombination.h"

#include <QElapsedTimer>
#include <QObject>

namespace Kestrune {

/// Whose shortcut it is, and what is wanted.
struct WantedShortcut
{
    QString program;     ///< The id of the application, which is the name of its desktop file.
    QString action;      ///< Its name among the program's, the same in every run.
    QString description; ///< What it does, for the desktop's own settings.
    KeyCombination keys;
};

/// One registration with a service of the desktop; it ends with the object.
class Shortcut : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// Once for each press, however often the service repeats it while the key is held down.
    void pressed();
    /// Different from the last one, which is pending at the start.
    void bindingChanged(const Kestrune::HotKeyBinding &binding);
    /// The service is not there, does not know shortcuts, or does not answer.
    void unavailable();

protected:
    void keyWentDown();
    void keyWentUp() { m_down = false; }
    void setBinding(const HotKeyBinding &binding);

private:
    HotKeyBinding m_binding;
    bool m_down = false;
    QElapsedTimer m_sinceDown;
};

} // namespace Kestrune
