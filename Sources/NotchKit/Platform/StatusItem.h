#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace Kestrune {

/// One line of the status item's menu.
struct StatusMenuEntry
{
    QString title;                ///< Empty for a divider.
    std::function<void()> action; ///< Empty for a text that only informs.
    bool enabled = true;
    /// The keys shown beside it: modifiers ("Control", "Alt", "Super", "Shift"), then the key ("n").
    QStringList shortcut = {};

    bool isDivider() const { return title.isEmpty(); }
};

/// The program's symbol in the desktop's panel, with a menu. Where the desktop shows no such symbols there
/// is none, until it does. Main thread only; nothing here waits.
class StatusItem
{
public:
    virtual ~StatusItem() = default;

    /// Replaces the whole menu, also while it is open.
    virtual void setMenu(const QList<StatusMenuEntry> &menu) = 0;
};

} // namespace Kestrune
