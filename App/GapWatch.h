#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <chrono>

namespace Kestrune {

/// Says in the log when the thread that it lives in did not come round for longer than a person may notice,
/// and how much of that time it computed itself. It looks a hundred times a second, so only where
/// "kestrune.gaps" is asked for.
class GapWatch
{
public:
    GapWatch();

private:
    void look();

    QTimer m_timer;
    QElapsedTimer m_sinceLook;
    std::chrono::nanoseconds m_computed{}; ///< By this thread, until the last look.
};

} // namespace Kestrune
