#pragma once

#include <QObject>

namespace Kestrune {

/// Tells when it is worth to ask again what could not be reached. Main thread only.
class NetworkReturn : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// There is a network, another than before, or one that reaches further.
    void returned();
};

} // namespace Kestrune
