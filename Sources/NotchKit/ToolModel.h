#pragma once

#include "Catalogue.h"

#include <QDateTime>
#include <QObject>

#include <optional>

namespace Kestrune {

/// What one tick of the 1 s clock tells the tools.
struct ClockTick
{
    QDateTime now;                        ///< UTC.
    qint64 seconds = 0;                   ///< Whole seconds since the epoch; cadences test it.
    bool anyExpanded = false;             ///< At least one notch is open.
    std::optional<NotchTool> visibleTool; ///< The pane on screen.
};

/// What the services hub drives: one tool's state holder. A tool overrides what it needs; the hub knows no
/// more of it. Main thread only.
class ToolModel : public QObject
{
    Q_OBJECT

public:
    /// What a tool has to show beside the closed notch.
    enum class Activity {
        none,
        held,         ///< Shown when another activity has opened the wings.
        live,         ///< Opens the wings while live activities are on.
        announcement, ///< Opens the wings while announcements are on.
    };

    /// Which of the hub's clocks the tool needs just now.
    enum class Pace {
        rest,    ///< None: it hears of what changes, or nothing does.
        seconds, ///< `tick`, although every notch may be closed.
        fast,    ///< `fastTick`.
    };

    explicit ToolModel(NotchTool tool, QObject *parent = nullptr);

    NotchTool tool() const { return m_tool; }

    /// Read inside a binding: what it depends on must be bindable, and read each time in the same order.
    virtual Activity activity() const { return Activity::none; }

    /// Read inside a binding, as `activity`.
    virtual Pace pace() const { return Pace::rest; }

    virtual void hubStarted() {}
    virtual void hubStopped() {}

    /// Another pane came on screen, or none.
    virtual void visibleToolChanged(std::optional<NotchTool> /*visible*/) {}

    /// The machine has slept: what was fetched before is old. The network may still be away.
    virtual void machineWoke() {}

    /// What could not be fetched for want of a network is worth another try.
    virtual void networkReturned() {}

    /// Every second while a notch is open or some tool's pace wants it.
    virtual void tick(const ClockTick & /*tick*/) {}

    /// Twenty times a second while some tool's pace wants it.
    virtual void fastTick() {}

Q_SIGNALS:
    /// The time should be read anew at once, not at the next tick.
    void timeWanted();

private:
    NotchTool m_tool;
};

} // namespace Kestrune
