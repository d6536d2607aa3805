#pragma once

#include <QString>

namespace Kestrune {

/// Which applications run in this session. Main thread only; answers from memory.
class RunningApplications
{
public:
    virtual ~RunningApplications() = default;

    /// Whether at least one application with that bundle identifier runs.
    virtual bool isRunning(const QString &bundleIdentifier) const = 0;
};

} // namespace Kestrune
