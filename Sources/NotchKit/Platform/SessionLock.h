#pragma once

#include <QObject>

namespace Kestrune {

/// Whether the session is locked, or its screen saver hides it. Main thread only; answers from memory.
class SessionLock : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool isLocked() const = 0;

Q_SIGNALS:
    void changed();
};

} // namespace Kestrune
