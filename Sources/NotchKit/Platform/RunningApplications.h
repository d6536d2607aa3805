#pragma once

#include <QString>

#include <functional>

namespace Kestrune {

/// Which applications run in this session. Main thread only; answers from memory.
class RunningApplications
{
public:
    virtual ~RunningApplications() = default;

    /// Whether at least one application with that bundle identifier runs.
    virtual bool isRunning(const QString &bundleIdentifier) const = 0;

    /// Calls `changed`, and nobody who asked before, whenever one of them comes, goes, or tells that it does
    /// something else. False where nothing is told, so that they have to be asked from time to time.
    virtual bool follow(const std::function<void()> &changed)
    {
        Q_UNUSED(changed);
        return false;
    }
};

} // namespace Kestrune
