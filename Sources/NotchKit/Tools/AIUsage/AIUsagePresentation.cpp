#include "AIUsagePresentation.h"

#include "NotchKit/Kit/Format.h"

#include "NotchKit/NotchStrings.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace Kestrune {

namespace {

constexpr int kFarDays = 6; // a weekday more than six days away could be any

/// Any fraction, however absurd, as a number that can be written.
QString wholePercent(double fraction)
{
    return Format::digits(QString::number(std::llround(std::clamp(fraction * 100, -1e15, 1e15))));
}

/// A number with the plural form of any other: every language looks at the last digits of large ones.
int pluralOf(qint64 number)
{
    constexpr qint64 kLarge = 1'000'000;
    return static_cast<int>(number < kLarge ? std::max<qint64>(number, 0) : kLarge + number % kLarge);
}

QString tokensText(qint64 tokens)
{
    //: %1 is the number of tokens, the pieces of text that a language model counts in.
    return notchStrings(QT_TRANSLATE_N_NOOP("notch", "%1 tokens"), pluralOf(tokens))
        .arg(QLocale().toString(tokens));
}

} // namespace

QString AIUsagePresentation::timeText(const QDateTime &time, const QDateTime &now, const QLocale &locale)
{
    const QDateTime local = time.toLocalTime();
    const qint64 days = std::abs(now.toLocalTime().date().daysTo(local.date()));
    const QString clock = Format::clockTime(local.time(), locale);
    if (days == 0)
        return clock;
    const QString day = days <= kFarDays ? locale.dayName(local.date().dayOfWeek(), QLocale::ShortFormat)
                                         : locale.toString(local.date(), QLocale::ShortFormat);
    return day + QLatin1Char(' ') + clock;
}

QString AIUsagePresentation::leftText(double usedPercent)
{
    const double left = std::clamp(std::floor(100 - usedPercent), 0.0, 100.0);
    //: What is left of a limit, in per cent.
    return notchStrings(QT_TRANSLATE_N_NOOP("notch", "%Ln% left"), static_cast<int>(left));
}

void AIUsagePresentation::follow(AIUsageModel &usage, NotchSurroundings &surroundings)
{
    m_model = &usage;
    m_surroundings = &surroundings;
    const NotchSettings *settings = surroundings.settings();
    connect(&usage, &AIUsageModel::codexChanged, this, &AIUsagePresentation::update);
    connect(&usage, &AIUsageModel::claudeChanged, this, &AIUsagePresentation::update);
    connect(&usage, &AIUsageModel::loadingChanged, this, &AIUsagePresentation::update);
    connect(settings, &NotchSettings::readCodexUsageChanged, this, &AIUsagePresentation::update);
    connect(settings, &NotchSettings::readClaudeUsageChanged, this, &AIUsagePresentation::update);
    connect(settings, &NotchSettings::claudeBlockBudgetChanged, this, &AIUsagePresentation::update);
    update();
}

void AIUsagePresentation::update()
{
    Shown shown;
    addCodex(shown);
    addClaude(shown);
    if (shown == m_shown)
        return;
    m_shown = shown;
    Q_EMIT changed();
}

void AIUsagePresentation::addCodex(Shown &shown) const
{
    const AIUsageModel &model = *m_model;
    const auto codex = model.codex();
    shown.codexOn = m_surroundings->settings()->readCodexUsage();
    if (!codex && (model.loading() || !model.codexMissing())) {
        shown.codexHint = notchStrings(QT_TRANSLATE_NOOP("notch", "Reading…"));
    } else if (!codex || (!codex->primary && !codex->secondary)) {
        shown.codexHint = notchStrings(
            QT_TRANSLATE_NOOP("notch", "No Codex activity found yet. Use Codex once and it appears here."));
    } else {
        //: %1 is a time, such as “14:05” or “Mon 14:05”.
        shown.codexUpdated =
            notchStrings(QT_TRANSLATE_NOOP("notch", "Updated %1")).arg(timeText(codex->updated));
        if (codex->primary)
            shown.codexWindows.append(
                //: The name of a limit that holds for five hours.
                line(notchStrings(QT_TRANSLATE_NOOP("notch", "5-hour window")), *codex->primary,
                     codex->updated));
        if (codex->secondary)
            shown.codexWindows.append(
                //: The name of a limit that holds for a week.
                line(notchStrings(QT_TRANSLATE_NOOP("notch", "Weekly")), *codex->secondary, codex->updated));
    }
}

void AIUsagePresentation::addClaude(Shown &shown) const
{
    const AIUsageModel &model = *m_model;
    const auto claude = model.claude();
    shown.claudeOn = m_surroundings->settings()->readClaudeUsage();
    if (claude) {
        shown.claudeTokens = tokensText(claude->blockTokens);
        shown.claudeBlock = blockLine(*claude);
        shown.days = dayBars(*claude);
    } else if (model.loading() || !model.claudeMissing()) {
        shown.claudeHint = notchStrings(QT_TRANSLATE_NOOP("notch", "Reading…"));
    } else {
        shown.claudeHint = notchStrings(QT_TRANSLATE_NOOP("notch", "No Claude Code activity found."));
    }
}

UsageLine AIUsagePresentation::line(const QString &title, const UsageWindow &window,
                                    const QDateTime &updated) const
{
    const QDateTime now = m_surroundings->now();
    const double used = window.asOf(now).usedPercent;
    //: A limit has begun anew since it was read; %1 is when that was, such as “14:05” or “Mon 14:05”.
    constexpr auto kRenewed = QT_TRANSLATE_NOOP("notch", "Renewed; figures of %1");
    const QString resets =
        window.isRenewed(now) ? notchStrings(kRenewed).arg(timeText(updated)) : resetText(window.resetsAt);
    return {title, leftText(used), leftText(used), used / 100, resets, window.isRenewed(now)};
}

UsageLine AIUsagePresentation::blockLine(const AIUsageModel::Claude &claude) const
{
    const qint64 budget = m_surroundings->settings()->claudeBlockBudget();
    const bool hasBudget = budget >= 1;
    const qint64 yardstick = hasBudget ? budget : std::max<qint64>(claude.peakBlockTokens, 1);
    const double fraction = static_cast<double>(claude.blockTokens) / static_cast<double>(yardstick);
    //: %1 is a number. There is little room.
    constexpr auto kOfBudget = QT_TRANSLATE_NOOP("notch", "%1% of your budget");
    //: %1 is a number; a block is five hours of work. There is little room.
    constexpr auto kOfBusiest = QT_TRANSLATE_NOOP("notch", "%1% of your busiest block this week");
    std::optional<QDateTime> end;
    if (claude.blockStart)
        end = claude.blockStart->addSecs(AIUsageModel::Claude::kBlockSeconds);
    return {notchStrings(QT_TRANSLATE_NOOP("notch", "This 5-hour block")),
            notchStrings(hasBudget ? kOfBudget : kOfBusiest).arg(wholePercent(fraction)),
            notchStrings(QT_TRANSLATE_NOOP("notch", "%1%")).arg(wholePercent(fraction)),
            fraction,
            resetText(end),
            false};
}

QList<UsageDay> AIUsagePresentation::dayBars(const AIUsageModel::Claude &claude) const
{
    const qint64 most = std::max<qint64>(*std::ranges::max_element(claude.dailyTokens), 1);
    const QLocale locale;
    QDate day = m_surroundings->now().toLocalTime().date().addDays(1 - AIUsageModel::Claude::kDays);
    QList<UsageDay> days;
    for (const qint64 ofDay : claude.dailyTokens) {
        const QString name = locale.standaloneDayName(day.dayOfWeek());
        days.append({static_cast<double>(ofDay) / static_cast<double>(most),
                     locale.standaloneDayName(day.dayOfWeek(), QLocale::NarrowFormat),
                     name + QLatin1String(": ") + tokensText(ofDay)});
        day = day.addDays(1);
    }
    return days;
}

QString AIUsagePresentation::resetText(const std::optional<QDateTime> &time) const
{
    //: When a limit begins anew; %1 is a time, such as “14:05” or “Mon 14:05”. There is little room.
    return time ? notchStrings(QT_TRANSLATE_NOOP("notch", "Resets: %1")).arg(timeText(*time)) : QString();
}

QString AIUsagePresentation::timeText(const QDateTime &time) const
{
    return timeText(time, m_surroundings->now(), QLocale());
}

} // namespace Kestrune
