#include "CalendarColor.h"

#include <QRegularExpression>

#include <algorithm>

namespace Kestrune {

namespace {

/// "255", or "100%".
int channel(const QString &text)
{
    const bool isPercent = text.endsWith(QLatin1Char('%'));
    const double number = text.chopped(isPercent ? 1 : 0).toDouble();
    return static_cast<int>(std::clamp(isPercent ? number * 2.55 + 0.5 : number, 0.0, 255.0));
}

QColor fromFunction(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral(R"(^rgba?\(\s*([\d.]+%?)[\s,]+([\d.]+%?)[\s,]+([\d.]+%?)\s*([,/].*)?\)$)"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    return {channel(match.captured(1)), channel(match.captured(2)), channel(match.captured(3))};
}

} // namespace

QColor calendarColor(const QString &text)
{
    QString name = text.trimmed();
    if (name.startsWith(QLatin1Char('#'))) {
        const qsizetype digits = name.size() - 1;
        if (digits == 4 || digits == 8) // The opacity comes last; Qt would take it for the first.
            name.chop(digits / 4);
    } else if (name.contains(QLatin1Char('('))) {
        return fromFunction(name);
    }
    QColor color = QColor::isValidColorName(name) ? QColor(name) : QColor();
    if (color.isValid())
        color.setAlpha(255);
    return color;
}

} // namespace Kestrune
