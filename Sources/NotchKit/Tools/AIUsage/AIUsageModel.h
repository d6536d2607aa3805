#pragma once

#include "Async/Scope.h"
#include "Async/Worker.h"
#include "NotchKit/Platform/Clock.h"
#include "NotchKit/ToolModel.h"
#include "UsageFigures.h"

#include <QProperty>

#include <chrono>
#include <memory>

namespace Kestrune {

class NotchSettings;

/// Where the two assistants keep their files, and where is kept what was read of them.
struct AIUsageHomes
{
    QString codex;      ///< Codex CLI's own folder.
    QStringList claude; ///< The folders of Claude Code's session logs; one may be there twice.
    QString memory;     ///< The file of what was read of those; empty for none.

    /// Their places below a user's home folder, and in the folders of `claudeConfig`, which are parted by
    /// commas (as CLAUDE_CONFIG_DIR has them).
    static AIUsageHomes below(const QString &home, const QString &claudeConfig = QString());
};

/// How much of their plans' limits the user has used in two coding assistants, read from the logs that they
/// keep. Reads in the background, at most once a minute unless asked to, and only the sources that are
/// switched on in the settings. Main thread only.
class AIUsageModel : public ToolModel
{
    Q_OBJECT
    /// A refresh is running.
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged BINDABLE bindableLoading)

public:
    using Window = UsageWindow;
    using Codex = CodexUsage;
    using Claude = ClaudeUsage;

    AIUsageModel(NotchSettings &settings, Clock &clock, const AIUsageHomes &homes, QObject *parent = nullptr);
    ~AIUsageModel() override;

    /// The last figures; nothing before the first refresh and when the last one found nothing. A source
    /// that is switched off keeps its last ones.
    std::optional<Codex> codex() const { return m_codex; }
    std::optional<Claude> claude() const { return m_claude; }

    /// The last refresh of that source found nothing.
    bool codexMissing() const { return m_codexMissing; }
    bool claudeMissing() const { return m_claudeMissing; }

    bool loading() const { return m_loading; }
    QBindable<bool> bindableLoading() { return &m_loading; }

    /// Reads the sources that are on, unless that is going on already; without `force`, only when more than
    /// a minute has passed since the last time.
    Q_INVOKABLE void refresh(bool force);

    /// Switches a source on and reads it at once.
    Q_INVOKABLE void connectCodex();
    Q_INVOKABLE void connectClaude();

    void visibleToolChanged(std::optional<NotchTool> visible) override;
    void machineWoke() override { m_lastRefresh.reset(); }
    void tick(const ClockTick &tick) override;

Q_SIGNALS:
    void loadingChanged();
    void codexChanged();
    void claudeChanged();

private:
    struct Sources;
    struct Found;

    bool showsFigures(std::optional<NotchTool> visible) const;
    void sourceSwitched(bool on);
    void forgetClaude();
    QCoro::Task<> read(Found wanted);
    void take(const Found &found);

    NotchSettings &m_settings;
    Clock &m_clock;
    const AIUsageHomes m_homes;
    std::shared_ptr<Sources> m_sources; ///< Shared with a refresh that outlives the model.
    std::optional<std::chrono::nanoseconds> m_lastRefresh;
    bool m_shown = false;
    Worker m_reader{"usage"};
    Scope m_reads;
    Q_OBJECT_BINDABLE_PROPERTY(AIUsageModel, std::optional<Codex>, m_codex, &AIUsageModel::codexChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AIUsageModel, std::optional<Claude>, m_claude, &AIUsageModel::claudeChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AIUsageModel, bool, m_codexMissing, false,
                                         &AIUsageModel::codexChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AIUsageModel, bool, m_claudeMissing, false,
                                         &AIUsageModel::claudeChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AIUsageModel, bool, m_loading, false, &AIUsageModel::loadingChanged)
};

} // namespace Kestrune
