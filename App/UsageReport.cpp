#include "UsageReport.h"

#include "NotchKit/Tools/AIUsage/AIUsageModel.h"
#include "NotchKit/Tools/AIUsage/AIUsagePresentation.h"
#include "NotchKit/Tools/AIUsage/ClaudeLogReader.h"
#include "NotchKit/Tools/AIUsage/CodexReader.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

namespace Kestrune {

namespace {

QJsonValue time(const std::optional<QDateTime> &time)
{
    return time ? QJsonValue(time->toUTC().toString(Qt::ISODateWithMs)) : QJsonValue();
}

QJsonValue json(const std::optional<ClaudeUsage> &claude)
{
    if (!claude)
        return {};
    QJsonArray days;
    for (const qint64 tokens : claude->dailyTokens)
        days.append(tokens);
    return QJsonObject{{QStringLiteral("blockTokens"), claude->blockTokens},
                       {QStringLiteral("blockStart"), time(claude->blockStart)},
                       {QStringLiteral("weekTokens"), claude->weekTokens},
                       {QStringLiteral("weekMessages"), claude->weekMessages},
                       {QStringLiteral("lastActivity"), time(claude->lastActivity)},
                       {QStringLiteral("peakBlockTokens"), claude->peakBlockTokens},
                       {QStringLiteral("dailyTokens"), days}};
}

QJsonValue json(const std::optional<UsageWindow> &window)
{
    if (!window)
        return {};
    return QJsonObject{{QStringLiteral("usedPercent"), window->usedPercent},
                       {QStringLiteral("minutes"), window->minutes},
                       {QStringLiteral("resetsAt"), time(window->resetsAt)}};
}

std::optional<UsageWindow> asOf(const QDateTime &now, const std::optional<UsageWindow> &window)
{
    return window ? std::optional(window->asOf(now)) : std::nullopt;
}

QJsonValue json(const std::optional<CodexUsage> &codex, const QDateTime &now)
{
    if (!codex)
        return {};
    return QJsonObject{{QStringLiteral("primary"), json(asOf(now, codex->primary))},
                       {QStringLiteral("secondary"), json(asOf(now, codex->secondary))},
                       {QStringLiteral("updated"), time(codex->updated)}};
}

/// Reports in words, one figure a line.
class Words
{
public:
    explicit Words(const QDateTime &now)
        : m_now(now)
    {}

    void add(const std::optional<CodexUsage> &codex)
    {
        if (!codex) {
            line(QStringLiteral("Codex: no activity found"));
            return;
        }
        line(QStringLiteral("Codex, updated %1").arg(timeText(codex->updated)));
        add(QStringLiteral("5-hour window"), codex->primary);
        add(QStringLiteral("weekly"), codex->secondary);
    }

    void add(const std::optional<ClaudeUsage> &claude)
    {
        if (!claude) {
            line(QStringLiteral("Claude Code: no activity found"));
            return;
        }
        const auto number = [](qint64 tokens) { return QLocale().toString(tokens); };
        line(QStringLiteral("Claude Code"));
        QString block = QStringLiteral("  this 5-hour block: %1 tokens").arg(number(claude->blockTokens));
        if (claude->blockStart)
            block += until(claude->blockStart->addSecs(ClaudeUsage::kBlockSeconds));
        line(block);
        line(QStringLiteral("  busiest block: %1 tokens").arg(number(claude->peakBlockTokens)));
        line(QStringLiteral("  last 7 days: %1 tokens in %2 responses")
                 .arg(number(claude->weekTokens), number(claude->weekMessages)));
    }

    QByteArray text() const { return m_text.toUtf8(); }

private:
    void add(const QString &name, const std::optional<UsageWindow> &window)
    {
        if (!window)
            return;
        const QString resets = window->isRenewed(m_now) ? QStringLiteral(", renewed since")
                               : window->resetsAt       ? until(*window->resetsAt)
                                                        : QString();
        line(QStringLiteral("  %1: %2% used").arg(name).arg(window->asOf(m_now).usedPercent) + resets);
    }

    QString until(const QDateTime &end) const { return QStringLiteral(", resets ") + timeText(end); }

    QString timeText(const QDateTime &time) const
    {
        return AIUsagePresentation::timeText(time, m_now, QLocale());
    }

    void line(const QString &text) { m_text += text + QLatin1Char('\n'); }

    QDateTime m_now;
    QString m_text;
};

} // namespace

QByteArray usageReport(const UsageRequest &request)
{
    const AIUsageHomes homes = AIUsageHomes::below(request.home, request.claudeConfig);
    const auto claude = ClaudeLogReader(homes.claude).summary(request.now);
    const auto codex = CodexReader::readCodex(homes.codex, request.now, StopFlag(false));
    if (request.json) {
        const QJsonObject report{{QStringLiteral("claude"), json(claude)},
                                 {QStringLiteral("codex"), json(codex, request.now)}};
        return QJsonDocument(report).toJson(QJsonDocument::Indented);
    }
    Words words(request.now);
    words.add(codex);
    words.add(claude);
    return words.text();
}

} // namespace Kestrune
