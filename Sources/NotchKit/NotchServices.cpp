#include "NotchServices.h"

#include "AirDrop.h"
#include "NotchKit/Platform/Workspace.h"
#include "Tools/AIUsageModel.h"
#include "Tools/CalendarModel.h"
#include "Tools/CapturesModel.h"
#include "Tools/ClipboardModel.h"
#include "Tools/MirrorModel.h"
#include "Tools/NowPlayingModel.h"
#include "Tools/ShelfModel.h"
#include "Tools/StocksModel.h"
#include "Tools/SystemModel.h"
#include "Tools/TeleprompterModel.h"
#include "Tools/TimerModel.h"
#include "Tools/WeatherModel.h"

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

template <typename Model>
Model *NotchServices::add(std::unique_ptr<Model> model)
{
    Model *added = model.get();
    m_models.push_back(std::move(model));
    return added;
}

NotchServices::NotchServices(NotchSettings &settings, const NotchBranding &branding,
                             const NotchPlatform &platform, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_branding(branding)
    , m_clock(platform.clock)
    , m_workspace(platform.workspace)
    , m_thumbnails(platform.thumbnails)
    , m_airDrop(std::make_unique<AirDrop>(platform.sharing))
    , m_captures(
          add(std::make_unique<CapturesModel>(settings, platform.clock, platform.captures,
                                              platform.thumbnails, platform.pasteboard, platform.workspace)))
    , m_timer(add(std::make_unique<TimerModel>(platform.clock, platform.sounds)))
    , m_nowPlaying(add(std::make_unique<NowPlayingModel>(settings, platform.clock, platform.players,
                                                         platform.scripts, platform.http)))
    , m_clipboard(add(
          std::make_unique<ClipboardModel>(settings, platform.defaults, platform.clock, platform.pasteboard)))
    , m_aiUsage(
          add(std::make_unique<AIUsageModel>(settings, platform.clock, AIUsageHomes::below(platform.home))))
    , m_shelf(add(std::make_unique<ShelfModel>(settings, platform.workspace, *m_airDrop, platform.drags)))
    , m_weather(
          add(std::make_unique<WeatherModel>(settings, platform.clock, platform.http, platform.location)))
    , m_stocks(add(std::make_unique<StocksModel>(settings, platform.clock, platform.http)))
    , m_system(add(std::make_unique<SystemModel>(settings, platform.host)))
    , m_prompter(add(std::make_unique<TeleprompterModel>(settings)))
    , m_mirror(add(std::make_unique<MirrorModel>(platform.camera)))
    , m_calendar(add(std::make_unique<CalendarModel>(settings, platform.clock, platform.calendars)))
    , m_now(platform.clock.now())
{
    m_activityTool.setBinding([this] { return computeActivityTool(); });
    m_hasActivity.setBinding([this] { return m_activityTool.value().has_value(); });
    // A countdown that starts between two ticks would otherwise show one second too many.
    connect(m_timer, &TimerModel::endDateChanged, this, &NotchServices::refreshNow);
}

NotchServices::~NotchServices() { stop(); }

void NotchServices::start()
{
    if (m_clockTimer)
        return;
    refreshNow();
    m_clockTimer = m_clock.every(1s, [this] { tick(); });
    m_fastTimer = m_clock.every(50ms, [this] { fastTick(); });
    for (const auto &model : m_models)
        model->hubStarted();
}

void NotchServices::stop()
{
    if (!m_clockTimer)
        return;
    m_clockTimer.reset();
    m_fastTimer.reset();
    for (const auto &model : m_models)
        model->hubStopped();
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
    for (const auto &model : m_models) {
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

void NotchServices::openUrl(const QUrl &url) { m_workspace.open(url); }

void NotchServices::openPrivacy(const QString &anchor)
{
    const QUrl url(QStringLiteral("x-apple.systempreferences:com.apple.preference.security?") + anchor,
                   QUrl::StrictMode);
    if (!url.isValid())
        qFatal("%s is no privacy page", qPrintable(anchor));
    m_workspace.open(url);
}

void NotchServices::collapse() const
{
    if (collapseAll)
        collapseAll();
}

void NotchServices::refreshNow() { m_now = m_clock.now(); }

void NotchServices::tick()
{
    refreshNow();
    const ClockTick tick{now(), now().toSecsSinceEpoch(), anyExpanded(), visibleTool()};
    for (const auto &model : m_models)
        model->tick(tick);
}

void NotchServices::fastTick()
{
    ++m_ticks;
    for (const auto &model : m_models)
        model->fastTick(m_ticks);
}

} // namespace Kestrune
