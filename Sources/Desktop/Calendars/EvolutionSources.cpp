#include "EvolutionSources.h"

#include "CalendarColor.h"

#include <QHash>
#include <QLocale>

#include <algorithm>

namespace Kestrune {

namespace {

/// Values by "Group/Key".
using Values = QHash<QString, QString>;

Values parse(const QString &text)
{
    Values values;
    QString group;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QString plain = line.trimmed();
        if (plain.startsWith(QLatin1Char('[')) && plain.endsWith(QLatin1Char(']'))) {
            group = plain.mid(1, plain.size() - 2);
            values.insert(group, QString());
        } else if (const qsizetype at = plain.indexOf(QLatin1Char('=')); at > 0) {
            values.insert(group + QLatin1Char('/') + plain.left(at), plain.mid(at + 1));
        }
    }
    return values;
}

bool isOn(const Values &values, const QString &key) { return values.value(key) != QLatin1String("false"); }

/// Empty without one.
QString nameIn(const Values &values)
{
    const QString key = QStringLiteral("Data Source/DisplayName");
    for (QString language : QLocale::system().uiLanguages()) {
        const QString name = values.value(key + QStringLiteral("[%1]").arg(language.replace(u'-', u'_')));
        if (!name.isEmpty())
            return name;
    }
    return values.value(key);
}

} // namespace

QList<EvolutionSource> enabledSources(const QList<EvolutionKeyFile> &files)
{
    constexpr int kDeepest = 16; // Parents of parents; a circle ends here.
    const QString calendar = QStringLiteral("Calendar");
    const QString tasks = QStringLiteral("Task List");
    QHash<QString, Values> parsed;
    for (const EvolutionKeyFile &file : files)
        parsed.insert(file.uid, parse(file.text));
    const auto isEnabled = [&](QString uid) {
        for (int i = 0; i < kDeepest && !uid.isEmpty(); ++i) {
            const Values values = parsed.value(uid);
            if (!isOn(values, QStringLiteral("Data Source/Enabled")))
                return false;
            uid = values.value(QStringLiteral("Data Source/Parent"));
        }
        return true;
    };
    QList<EvolutionSource> sources;
    for (const EvolutionKeyFile &file : files) {
        const Values values = parsed.value(file.uid);
        for (const QString &kind : {calendar, tasks}) {
            if (values.contains(kind) && isOn(values, kind + QStringLiteral("/Selected")) &&
                isEnabled(file.uid))
                sources.append({file.uid, kind == tasks,
                                calendarColor(values.value(kind + QStringLiteral("/Color"))),
                                nameIn(values)});
        }
    }
    std::ranges::sort(sources, {}, &EvolutionSource::uid);
    return sources;
}

} // namespace Kestrune
