#pragma once

#include "NotchBranding.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchSettings.h"
#include "ToolModel.h"

#include <QDir>
#include <QProperty>

#include <functional>
#include <memory>
#include <vector>

namespace Kestrune {

class AirDrop;
class CameraSession;
class CalendarModel;
class CalendarStore;
class CapturesModel;
class ClipboardModel;
class DragPasteboard;
class FileSharing;
class HttpClient;
class LocationService;
class MirrorModel;
class Pasteboard;
class HostStatistics;
class ShelfModel;
class SystemModel;
class AIUsageModel;
class NowPlayingModel;
class RunningApplications;
class ScreenCaptureQuery;
class ScriptExecutor;
class SoundPlayer;
class StocksModel;
class TeleprompterModel;
class Thumbnails;
class TimerModel;
class UserDefaults;
class WeatherModel;
class Workspace;

/// The ports that the tools are built on.
struct NotchPlatform
{
    Clock &clock;
    UserDefaults &defaults;
    SoundPlayer &sounds;
    Workspace &workspace;
    Pasteboard &pasteboard;
    DragPasteboard &drags;
    FileSharing &sharing;
    ScreenCaptureQuery &captures;
    Thumbnails &thumbnails;
    HttpClient &http;
    LocationService &location;
    RunningApplications &players;
    ScriptExecutor &scripts;
    HostStatistics &host;
    CameraSession &camera;
    CalendarStore &calendars;
    QString home = QDir::homePath(); ///< The user's home folder, where other programs keep their files.
};

/// The hub: owns every tool model and the two clocks that drive them, and knows which pane is on screen.
/// The views reach the tools through it. A new tool adds one member below and one line in the constructor.
/// Main thread only.
class NotchServices : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("NotchKit/AirDrop.h")
    Q_MOC_INCLUDE("NotchKit/Tools/CalendarModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/CapturesModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/ClipboardModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/AIUsageModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/MirrorModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/NowPlayingModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/ShelfModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/StocksModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/SystemModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/TeleprompterModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/TimerModel.h")
    Q_MOC_INCLUDE("NotchKit/Tools/WeatherModel.h")
    Q_PROPERTY(Kestrune::NotchSettings *settings READ settings CONSTANT)
    Q_PROPERTY(Kestrune::CalendarModel *calendar READ calendar CONSTANT)
    Q_PROPERTY(Kestrune::CapturesModel *captures READ captures CONSTANT)
    Q_PROPERTY(Kestrune::ClipboardModel *clipboard READ clipboard CONSTANT)
    Q_PROPERTY(Kestrune::ShelfModel *shelf READ shelf CONSTANT)
    Q_PROPERTY(Kestrune::NowPlayingModel *nowPlaying READ nowPlaying CONSTANT)
    Q_PROPERTY(Kestrune::SystemModel *system READ system CONSTANT)
    Q_PROPERTY(Kestrune::TimerModel *timer READ timer CONSTANT)
    Q_PROPERTY(Kestrune::AIUsageModel *aiUsage READ aiUsage CONSTANT)
    Q_PROPERTY(Kestrune::WeatherModel *weather READ weather CONSTANT)
    Q_PROPERTY(Kestrune::StocksModel *stocks READ stocks CONSTANT)
    Q_PROPERTY(Kestrune::TeleprompterModel *prompter READ prompter CONSTANT)
    Q_PROPERTY(Kestrune::MirrorModel *mirror READ mirror CONSTANT)
    /// Sends files to the user's other devices.
    Q_PROPERTY(Kestrune::AirDrop *airDrop READ airDrop CONSTANT)
    /// The current time, updated every second while the hub runs. Not bindable for the views: a view's
    /// binding keeps a bindable dependency for good, and would wake each second while it is off screen.
    Q_PROPERTY(QDateTime now READ now NOTIFY nowChanged)
    /// At least one notch is open.
    Q_PROPERTY(bool anyExpanded READ anyExpanded NOTIFY anyExpandedChanged BINDABLE bindableAnyExpanded)
    /// The closed notch shows an activity in its wings.
    Q_PROPERTY(bool hasActivity READ hasActivity NOTIFY hasActivityChanged BINDABLE bindableHasActivity)

public:
    using Action = std::function<void()>;

    NotchServices(NotchSettings &settings, const NotchBranding &branding, const NotchPlatform &platform,
                  QObject *parent = nullptr);
    ~NotchServices() override;

    NotchSettings *settings() const { return &m_settings; }
    const NotchBranding &branding() const { return m_branding; }
    CalendarModel *calendar() const { return m_calendar; }
    CapturesModel *captures() const { return m_captures; }
    ClipboardModel *clipboard() const { return m_clipboard; }
    NowPlayingModel *nowPlaying() const { return m_nowPlaying; }
    TimerModel *timer() const { return m_timer; }
    ShelfModel *shelf() const { return m_shelf; }
    SystemModel *system() const { return m_system; }
    AIUsageModel *aiUsage() const { return m_aiUsage; }
    WeatherModel *weather() const { return m_weather; }
    StocksModel *stocks() const { return m_stocks; }
    TeleprompterModel *prompter() const { return m_prompter; }
    MirrorModel *mirror() const { return m_mirror; }
    AirDrop *airDrop() const { return m_airDrop.get(); }
    Thumbnails &thumbnails() const { return m_thumbnails; }

    QDateTime now() const { return m_now; }
    bool anyExpanded() const { return m_anyExpanded; }
    void setAnyExpanded(bool any) { m_anyExpanded = any; }
    QBindable<bool> bindableAnyExpanded() const { return QBindable<bool>(&m_anyExpanded); }
    bool hasActivity() const { return m_hasActivity; }
    QBindable<bool> bindableHasActivity() const { return QBindable<bool>(&m_hasActivity); }

    /// The tool whose activity the closed notch shows; nothing without an activity.
    std::optional<NotchTool> activityTool() const { return m_activityTool; }

    std::optional<NotchTool> visibleTool() const { return m_visibleTool; }
    qint64 ticks() const { return m_ticks; }

    /// Starts both clocks and the tools; nothing happens while they run.
    void start();
    void stop();

    /// The pane that is on screen from now on; nothing when every notch is closed.
    void show(std::optional<NotchTool> tool);

    /// Opens a web page.
    void openUrl(const QUrl &url);

    /// Opens the privacy page of the desktop's settings at `anchor` ("Privacy_Calendars"). An anchor that
    /// makes no valid address stops the program.
    Q_INVOKABLE void openPrivacy(const QString &anchor);

    /// Closes every notch, for example after a file was opened.
    Q_INVOKABLE void collapse() const;

    Action openSettings; ///< Opens the settings window; empty while the application offers none.
    Action collapseAll;  ///< Closes every notch; set by the controller.

Q_SIGNALS:
    void nowChanged();
    void anyExpandedChanged();
    void hasActivityChanged();
    void activityToolChanged();

private:
    template <typename Model>
    Model *add(std::unique_ptr<Model> model);
    std::optional<NotchTool> computeActivityTool() const;
    void refreshNow();
    void tick();
    void fastTick();

    NotchSettings &m_settings;
    NotchBranding m_branding;
    Clock &m_clock;
    Workspace &m_workspace;
    Thumbnails &m_thumbnails;
    std::unique_ptr<AirDrop> m_airDrop;
    std::vector<std::unique_ptr<ToolModel>> m_models; ///< The first with an activity shows it.
    CapturesModel *m_captures;
    TimerModel *m_timer;
    NowPlayingModel *m_nowPlaying;
    ClipboardModel *m_clipboard;
    AIUsageModel *m_aiUsage;
    ShelfModel *m_shelf;
    WeatherModel *m_weather;
    StocksModel *m_stocks;
    SystemModel *m_system;
    TeleprompterModel *m_prompter;
    MirrorModel *m_mirror;
    CalendarModel *m_calendar;
    std::optional<NotchTool> m_visibleTool;
    std::unique_ptr<RunningTimer> m_clockTimer;
    std::unique_ptr<RunningTimer> m_fastTimer;
    qint64 m_ticks = 0;
    Q_OBJECT_BINDABLE_PROPERTY(NotchServices, QDateTime, m_now, &NotchServices::nowChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchServices, bool, m_anyExpanded, false,
                                         &NotchServices::anyExpandedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchServices, bool, m_hasActivity, false,
                                         &NotchServices::hasActivityChanged)
    Q_OBJECT_BINDABLE_PROPERTY(NotchServices, std::optional<NotchTool>, m_activityTool,
                               &NotchServices::activityToolChanged)
};

} // namespace Kestrune
