#include "AIUsageModel.h"

#include "ClaudeLogReader.h"
#include "CodexReader.h"
#include "NotchKit/NotchSettings.h"

#include <QDir>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kUsagePause = 60s;
constexpr auto kLongestRead = 10min; // Of logs of many gigabytes on a slow disk.
constexpr auto kLongestWrite = 1min;

} // namespace

/// What a refresh works on in its thread.
struct AIUsageModel::Sources
{
    explicit Sources(const AIUsageHomes &homes)
        : codexHome(homes.codex)
        , claude(homes.claude, homes.memory)
    {}

    /// What still runs ends soon; the program need not wait for it.
    void cancel()
    {
        stop = true;
        claude.cancel();
    }

    const QString codexHome;
    ClaudeLogReader claude;
    StopFlag stop = false;
};

/// What a refresh brings back; a source that it did not read is not `read`.
struct AIUsageModel::Found
{
    bool readCodex = false;
    bool readClaude = false;
    std::optional<Codex> codex;
    std::optional<Claude> claude;
};

AIUsageHomes AIUsageHomes::below(const QString &home, const QString &claudeConfig)
{
    AIUsageHomes homes{
        home + QLatin1String("/.codex"),
        {home + QLatin1String("/.claude/projects"), home + QLatin1String("/.config/claude/projects")},
        {}};
    for (const QString &folder : claudeConfig.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        if (QDir::isAbsolutePath(folder.trimmed()))
            homes.claude.append(folder.trimmed() + QLatin1String("/projects"));
    }
    return homes;
}

AIUsageModel::AIUsageModel(NotchSettings &settings, Clock &clock, const AIUsageHomes &homes, QObject *parent)
    : ToolModel(NotchTool::aiUsage, parent)
    , m_settings(settings)
    , m_clock(clock)
    , m_homes(homes)
    , m_sources(std::make_shared<Sources>(homes))
{
    connect(&settings, &NotchSettings::readCodexUsageChanged, this,
            [this] { sourceSwitched(m_settings.readCodexUsage()); });
    connect(&settings, &NotchSettings::readClaudeUsageChanged, this,
            [this] { sourceSwitched(m_settings.readClaudeUsage()); });
    connect(&settings, &NotchSettings::readClaudeUsageChanged, this, &AIUsageModel::forgetClaude);
}

AIUsageModel::~AIUsageModel() { m_sources->cancel(); }

void AIUsageModel::refresh(bool force)
{
    if (!force && m_lastRefresh && m_clock.uptimeWithSleep() - *m_lastRefresh <= kUsagePause)
        return;
    Found found;
    found.readCodex = m_settings.readCodexUsage();
    found.readClaude = m_settings.readClaudeUsage();
    if (loading() || (!found.readCodex && !found.readClaude))
        return;
    m_lastRefresh = m_clock.uptimeWithSleep();
    m_loading = true;
    m_reads.start(&AIUsageModel::read, this, found);
}

QCoro::Task<> AIUsageModel::read(Found wanted)
{
    const auto work = [sources = m_sources, now = m_clock.now(), found = wanted]() mutable {
        if (found.readCodex)
            found.codex = CodexReader::readCodex(sources->codexHome, now, sources->stop);
        if (found.readClaude)
            found.claude = sources->claude.summary(now);
        return found;
    };
    const QFuture<Found> reading = m_reader.run(kLongestRead, work);
    const Found found = co_await until(reading);
    if (!found.readCodex && !found.readClaude) {
        // It hangs, and keeps what it works on.
        m_sources->cancel();
        m_sources = std::make_shared<Sources>(m_homes);
    }
    take(found);
    // After the figures: nobody waits for it.
    if (found.readClaude)
        m_reader.run(kLongestWrite, [sources = m_sources] { return sources->claude.remember(); });
}

/// Nothing of a source that was switched off stays on the disk.
void AIUsageModel::forgetClaude()
{
    if (!m_settings.readClaudeUsage())
        m_reader.run(kLongestWrite, [sources = m_sources] { return sources->claude.forget(); });
}

void AIUsageModel::take(const Found &found)
{
    if (found.readCodex) {
        m_codexMissing = !found.codex;
        m_codex = found.codex;
    }
    if (found.readClaude) {
        m_claudeMissing = !found.claude;
        m_claude = found.claude;
    }
    m_loading = false;
}

void AIUsageModel::connectCodex()
{
    m_settings.setReadCodexUsage(true);
    refresh(true);
}

void AIUsageModel::connectClaude()
{
    m_settings.setReadClaudeUsage(true);
    refresh(true);
}

void AIUsageModel::sourceSwitched(bool on)
{
    if (!on)
        return;
    // A refresh that runs already does not read it: then the next tick begins another.
    m_lastRefresh.reset();
    if (m_shown)
        refresh(false);
}

bool AIUsageModel::showsFigures(std::optional<NotchTool> visible) const
{
    return visible == NotchTool::aiUsage ||
           (visible == NotchTool::home && m_settings.column(HomeWidget::aiUsage) != HomeColumn::hidden);
}

void AIUsageModel::visibleToolChanged(std::optional<NotchTool> visible)
{
    m_shown = showsFigures(visible);
    if (m_shown)
        refresh(false);
}

void AIUsageModel::tick(const ClockTick &tick)
{
    m_shown = tick.anyExpanded && showsFigures(tick.visibleTool);
    if (m_shown)
        refresh(false);
}

} // namespace Kestrune
