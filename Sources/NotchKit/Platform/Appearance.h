#pragma once

#include <QObject>

namespace Kestrune {

/// Whether the user prefers dark windows. Main thread only; nothing here waits.
class Appearance : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool dark READ isDark NOTIFY darkChanged)

public:
    using QObject::QObject;

    virtual bool isDark() const = 0;

Q_SIGNALS:
    void darkChanged();
};

} // namespace Kestrune
