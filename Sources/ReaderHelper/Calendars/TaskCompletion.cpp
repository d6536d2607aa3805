#include "TaskCompletion.h"

#include "IcalLines.h"
#include "IcalOccurrences.h"

#include <QRegularExpression>

#include <algorithm>

namespace Kestrune {

namespace {

QByteArray written(const QDateTime &wall, bool isDay, bool isUtc)
{
    const QString text =
        wall.toString(isDay ? QStringLiteral("yyyyMMdd") : QStringLiteral("yyyyMMdd'T'HHmmss"));
    return text.toLatin1() + (isUtc ? "Z" : "");
}

QByteArray stamp(const QDateTime &now) { return written(now.toUTC(), false, true); }

/// Its time as text, moved by the time that passes on the clocks between the two.
QByteArray moved(const IcalMoment &moment, const IcalMoment &from, const IcalMoment &to)
{
    const qint64 days = from.date.daysTo(to.date);
    const int seconds = from.isDay() ? 0 : from.time.secsTo(to.time);
    return written(moment.wall().addDays(days).addSecs(seconds), moment.isDay(),
                   moment.zone == IcalZones::utc());
}

void countDown(IcalLines &lines, IcalLines::Block &block)
{
    const QByteArray rule = lines.value(block, "RRULE").value_or(QByteArray());
    static const QRegularExpression count(QStringLiteral("\\bCOUNT=(\\d+)"),
                                          QRegularExpression::CaseInsensitiveOption);
    const auto found = count.match(QString::fromLatin1(rule));
    if (!found.hasMatch())
        return;
    QByteArray left = rule;
    left.replace(found.capturedStart(1), found.capturedLength(1),
                 QByteArray::number(found.captured(1).toInt() - 1));
    lines.set(block, "RRULE", left);
}

void finish(IcalLines &lines, IcalLines::Block &block, const QDateTime &now)
{
    lines.set(block, "STATUS", "COMPLETED");
    lines.set(block, "PERCENT-COMPLETE", "100");
    lines.set(block, "COMPLETED", stamp(now));
}

void moveOn(IcalLines &lines, IcalLines::Block &block, const IcalEntry &task, const IcalMoment &next)
{
    const IcalMoment &current = task.start.isValid() ? task.start : task.due;
    if (lines.value(block, "DUE"))
        lines.set(block, "DUE", moved(task.due, current, next));
    if (task.start.isValid())
        lines.set(block, "DTSTART", moved(task.start, current, next));
    countDown(lines, block);
    if (lines.value(block, "STATUS"))
        lines.set(block, "STATUS", "NEEDS-ACTION");
    lines.remove(block, "PERCENT-COMPLETE");
}

} // namespace

std::optional<CompletedTask> completeTask(const QByteArray &text, const QString &uid, const QString &instance,
                                          const QDateTime &now, IcalReader &reader,
                                          const IcalZones::Definition &definition)
{
    IcalContents contents;
    reader.readComponents(text, definition, contents);
    IcalLines lines(text);
    QList<IcalLines::Block> blocks = lines.blocks("VTODO");
    // The lines and what was read of them go together one by one, or this is no text to change.
    if (blocks.size() != contents.tasks.size())
        return std::nullopt;
    const auto wanted = std::ranges::find_if(contents.tasks, [&](const IcalEntry &task) {
        return task.uid == uid && QString::fromLatin1(task.instanceText) == instance;
    });
    if (wanted == contents.tasks.end() || wanted->done)
        return std::nullopt;
    IcalLines::Block &block = blocks[wanted - contents.tasks.begin()];
    QList<IcalMoment> instances;
    for (const IcalEntry &task : std::as_const(contents.tasks)) {
        if (task.uid == uid && task.instance.isValid())
            instances.append(task.instance);
    }
    const IcalMoment &current = wanted->start.isValid() ? wanted->start : wanted->due;
    const bool goesOn = wanted->repeats() && !wanted->instance.isValid() && current.isValid();
    const IcalMoment next = goesOn ? nextOccurrence(*wanted, current, instances) : IcalMoment();
    if (next.isValid())
        moveOn(lines, block, *wanted, next);
    else
        finish(lines, block, now);
    lines.set(block, "LAST-MODIFIED", stamp(now));
    lines.set(block, "DTSTAMP", stamp(now));
    return CompletedTask{lines.text(), lines.text(block)};
}

} // namespace Kestrune
