#pragma once

#include <QObject>

namespace Kestrune {

/// Tells of the machine's sleep. Main thread only.
class SystemSleep : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// The machine was asleep and is awake again; its network may come later.
    void woke();
};

} // namespace Kestrune
