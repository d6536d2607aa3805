#include "NotchServices.h"

#include "AirDrop.h"
#include "NotchKit/Platform/NetworkReturn.h"
#include "NotchKit/Platform/SystemSleep.h"

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

NotchServices::NotchServices(NotchSettings &settings, const NotchBranding &branding, const Platform &platform,
                             QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_branding(branding)
    , m_clock(platform.clock)
    , m_airDrop(std::make_unique<AirDrop>(platform.sharing))
    , m_surroundings(std::make_unique<NotchSurroundings>(settings, platform, *m_airDrop))
{
    const ToolContext context{settings, platform, *m_airDrop};
    for (const NotchTool tool : allCases<NotchTool>()) {
        if (const auto make = entry(tool).makeModel)
            m_models.push_back(make(context));
    }
    for (const NotchTool tool : toolsWithWings())
        m_wings.push_back(model(tool));
    m_activityTool.setBinding([this] { return computeActivityTool(); });
    m_hasActivity.setBinding([this] { return m_activityTool.value().has_value(); });
    m_wantsSeconds.setBinding([this] {
        const bool wanted = anyWants(ToolModel::Pace::seconds);
        return m_anyExpanded || wanted;
    });
    m_wantsFast.setBinding([this] { return anyWants(ToolModel::Pace::fast); });
    m_wishes.push_back(m_wantsSeconds.addNotifier([this] { followSeconds(); }));
    m_wishes.push_back(m_wantsFast.addNotifier([this] { followFast(); }));
    // What is timed from now on would otherwise show a second too many until the next tick.
    for (const auto &model : m_models) {
        connect(model.get(), &ToolModel::timeWanted, m_surroundings.get(), &NotchSurroundings::refreshNow);
        connect(&platform.sleep, &SystemSleep::woke, model.get(), &ToolModel::machineWoke);
        connect(&platform.network, &NetworkReturn::returned, model.get(), &ToolModel::networkReturned);
    }
}

ToolModel *NotchServices::model(NotchTool tool) const
{
    const auto found = std::ranges::find(m_models, tool, &ToolModel::tool);
    return found == m_models.end() ? nullptr : found->get();
}

NotchServices::~NotchServices() { stop(); }

void NotchServices::start()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    m_surroundings->refreshNow();
    followSeconds();
    followFast();
    for (const auto &model : m_models)
        model->hubStarted();
}

void NotchServices::stop()
{
    if (!m_isRunning)
        return;
    m_isRunning = false;
    m_clockTimer.reset();
    m_fastTimer.reset();
    for (const auto &model : m_models)
        model->hubStopped();
}

/// Asks them all, for the reason that `computeActivityTool` gives.
bool NotchServices::anyWants(ToolModel::Pace pace) const
{
    bool any = false;
    for (const auto &model : m_models)
        any = (model->pace() == pace) || any;
    return any;
}

void NotchServices::followSeconds()
{
    if (!m_isRunning || m_wantsSeconds == (m_clockTimer != nullptr))
        return;
    if (m_clockTimer) {
        m_clockTimer.reset();
        return;
    }
    m_surroundings->refreshNow(); // It has stood still.
    m_clockTimer = m_clock.every(1s, [this] { tick(); });
}

void NotchServices::followFast()
{
    if (!m_isRunning || m_wantsFast == (m_fastTimer != nullptr))
        return;
    m_fastTimer = m_wantsFast ? m_clock.every(50ms, [this] { fastTick(); }) : nullptr;
}

void NotchServices::show(std::optional<NotchTool> tool)
{
    m_visibleTool = tool;
    for (const auto &model : m_models)
        model->visibleToolChanged(tool);
}

/// Reads the same properties in the same order each time: a binding that reads less, or in another order,
/// than it did before is not safe in Qt 6.4 when it is one of those properties that has changed.
std::optional<NotchTool> NotchServices::computeActivityTool() const
{
    using Activity = ToolModel::Activity;
    const NotchTools enabled = m_settings.tools();
    const bool announces = m_settings.announceScreenshots();
    const bool showsLive = m_settings.liveActivities();
    std::optional<NotchTool> shown;
    bool opened = false;
    for (const ToolModel *model : m_wings) {
        const Activity activity = model->activity();
        if (!enabled.contains(model->tool()))
            continue;
        const bool opens =
            (activity == Activity::announcement && announces) || (activity == Activity::live && showsLive);
        const bool joins = opens || (activity == Activity::held && showsLive);
        opened = opened || opens;
        if (joins && !shown)
            shown = model->tool();
    }
    return opened ? shown : std::nullopt;
}

void NotchServices::tick()
{
    m_surroundings->refreshNow();
    const QDateTime now = m_surroundings->now();
    const ClockTick tick{now, now.toSecsSinceEpoch(), anyExpanded(), visibleTool()};
    for (const auto &model : m_models)
        model->tick(tick);
}

void NotchServices::fastTick()
{
    ++m_ticks;
    for (const auto &model : m_models)
        model->fastTick();
}

} // namespace Kestrune
