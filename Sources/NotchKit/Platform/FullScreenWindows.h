#pragma once

#include <QObject>
#include <QString>

namespace Kestrune {

/// Which displays a full-screen window covers that does not cover the closed notch by itself. Main thread
/// only; answers from memory.
class FullScreenWindows : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether it ever tells of one.
    virtual bool areTold() const { return true; }

    /// By the display's name.
    virtual bool cover(const QString &display) const = 0;

Q_SIGNALS:
    void changed();
};

/// Of a window system that lays full-screen windows over the closed notch.
class NoFullScreenWindows : public FullScreenWindows
{
    Q_OBJECT

public:
    using FullScreenWindows::FullScreenWindows;

    bool areTold() const override { return false; }
    bool cover(const QString & /*display*/) const override { return false; }
};

} // namespace Kestrune
