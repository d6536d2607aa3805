#pragma once

#include <QObject>
#include <QString>

namespace Kestrune {

/// One message of the program's among the desktop's notifications. Main thread only; nothing here waits.
class Notifications : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Shows it in the place of the one before, over full-screen windows too, until it is withdrawn or the
    /// user puts it away. Both are plain text. Nothing happens where the desktop shows none.
    virtual void show(const QString &title, const QString &text) = 0;

    /// Takes it away; nothing happens without one.
    virtual void withdraw() = 0;

Q_SIGNALS:
    /// The user clicked it.
    void activated();

    /// The user put it away.
    void dismissed();
};

} // namespace Kestrune
