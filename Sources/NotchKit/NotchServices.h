#pragma once

#include "NotchBranding.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/Platform.h"
#include "NotchSettings.h"
#include "NotchSurroundings.h"
#include "ToolModel.h"

#include <QProperty>

#include <functional>
#include <memory>
#include <vector>

namespace Kestrune {

class AirDrop;

/// The hub: owns every tool model and the two clocks that drive them, and knows which pane is on screen. Each
/// clock runs only while something needs it: with every notch closed and nothing going on, neither does. The
/// catalogue makes the models; the hub knows none of them by name.
/// Main thread only.
class NotchServices : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Kestrune::NotchSurroundings *surroundings READ surroundings CONSTANT)
    /// At least one notch is open.
    Q_PROPERTY(bool anyExpanded READ anyExpanded NOTIFY anyExpandedChanged BINDABLE bindableAnyExpanded)
    /// The closed notch shows an activity in its wings.
    Q_PROPERTY(bool hasActivity READ hasActivity NOTIFY hasActivityChanged BINDABLE bindableHasActivity)

public:
    using Action = std::function<void()>;

    NotchServices(NotchSettings &settings, const NotchBranding &branding, const Platform &platform,
                  QObject *parent = nullptr);
    ~NotchServices() override;

    NotchSettings *settings() const { return &m_settings; }
    const NotchBranding &branding() const { return m_branding; }
    NotchSurroundings *surroundings() const { return m_surroundings.get(); }

    /// The tool's model; null for a tool that needs none.
    ToolModel *model(NotchTool tool) const;

    /// The model of that type; null where no tool has one.
    template <typename Model>
    Model *model() const
    {
        for (const auto &candidate : m_models) {
            if (auto *model = qobject_cast<Model *>(candidate.get()))
                return model;
        }
        return nullptr;
    }

    bool anyExpanded() const { return m_anyExpanded; }
    void setAnyExpanded(bool any) { m_anyExpanded = any; }
    QBindable<bool> bindableAnyExpanded() const { return QBindable<bool>(&m_anyExpanded); }
    bool hasActivity() const { return m_hasActivity; }
    QBindable<bool> bindableHasActivity() const { return QBindable<bool>(&m_hasActivity); }

    /// The tool whose activity the closed notch shows; nothing without an activity.
    std::optional<NotchTool> activityTool() const { return m_activityTool; }

    std::optional<NotchTool> visibleTool() const { return m_visibleTool; }
    qint64 ticks() const { return m_ticks; }

    /// Starts the tools and the clocks that they need; nothing happens while they run.
    void start();
    void stop();

    /// The pane that is on screen from now on; nothing when every notch is closed.
    void show(std::optional<NotchTool> tool);

    Action openSettings; ///< Opens the settings window; empty while the application offers none.

Q_SIGNALS:
    void anyExpandedChanged();
    void hasActivityChanged();
    void activityToolChanged();

private:
    std::optional<NotchTool> computeActivityTool() const;
    bool anyWants(ToolModel::Pace pace) const;
    void followSeconds();
    void followFast();
    void tick();
    void fastTick();

    NotchSettings &m_settings;
    NotchBranding m_branding;
    Clock &m_clock;
    std::unique_ptr<AirDrop> m_airDrop;
    std::unique_ptr<NotchSurroundings> m_surroundings;
    std::vector<std::unique_ptr<ToolModel>> m_models;
    std::vector<const ToolModel *> m_wings; ///< Those with something for the wings; the first shows it.
    std::optional<NotchTool> m_visibleTool;
    std::unique_ptr<RunningTimer> m_clockTimer;
    std::unique_ptr<RunningTimer> m_fastTimer;
    qint64 m_ticks = 0;
    bool m_isRunning = false;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchServices, bool, m_anyExpanded, false,
                                         &NotchServices::anyExpandedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(NotchServices, bool, m_hasActivity, false,
                                         &NotchServices::hasActivityChanged)
    Q_OBJECT_BINDABLE_PROPERTY(NotchServices, std::optional<NotchTool>, m_activityTool,
                               &NotchServices::activityToolChanged)
    QProperty<bool> m_wantsSeconds;
    QProperty<bool> m_wantsFast;
    std::vector<QPropertyNotifier> m_wishes;
};

} // namespace Kestrune
