#include "SystemPresentation.h"

#include "NotchKit/Kit/Format.h"
#include "NotchKit/NotchStrings.h"
#include "NotchKit/Tools/AIUsage/UsageGauge.h"

#include <QLocale>

#include <algorithm>

namespace Kestrune {

namespace {

/// In units of 1,024, as memory is counted.
QString bytes(double amount, const QLocale &locale)
{
    const auto whole = static_cast<qint64>(std::clamp(amount, 0.0, 1e18));
    const int digits = amount < 100.0 * 1024 * 1024 * 1024 ? 1 : 0;
    return locale.formattedDataSize(whole, digits, QLocale::DataSizeTraditionalFormat);
}

SystemLine battery(int percent, bool charging)
{
    QString value = Format::digits(QString::number(percent)) + QLatin1Char('%');
    if (charging)
        //: Of the battery, after its level: “80% · charging”.
        value += QStringLiteral(" · ") + notchStrings(QT_TRANSLATE_NOOP("notch", "charging"));
    return {notchStrings(QT_TRANSLATE_NOOP("notch", "Battery")),
            charging ? QStringLiteral("battery.100.bolt") : QStringLiteral("battery.75"), value,
            percent / 100.0, true};
}

} // namespace

void SystemPresentation::setModel(SystemModel *model)
{
    m_model = model;
    connect(model, &SystemModel::changed, this, &SystemPresentation::update);
    update();
}

QList<SystemLine> SystemPresentation::describe(const SystemModel &model, const QLocale &locale)
{
    const double diskUsed = model.diskTotal() > 0 ? 1 - model.diskFree() / model.diskTotal() : 0;
    QList<SystemLine> lines{
        //: The processor and how busy it is. There is little room.
        {notchStrings(QT_TRANSLATE_NOOP("notch", "CPU")), QStringLiteral("cpu"),
         UsageGauge::percent(model.cpu()), model.cpu()},
        //: The working memory (RAM).
        {notchStrings(QT_TRANSLATE_NOOP("notch", "Memory")), QStringLiteral("memorychip"),
         bytes(model.memoryUsed(), locale) + QStringLiteral(" / ") + bytes(model.memoryTotal(), locale),
         model.memoryUsed() / std::max(model.memoryTotal(), 1.0)},
        {notchStrings(QT_TRANSLATE_NOOP("notch", "Disk")), QStringLiteral("internaldrive"),
         //: %1 is an amount with its unit, such as 12.3 GB.
         notchStrings(QT_TRANSLATE_NOOP("notch", "%1 free")).arg(bytes(model.diskFree(), locale)), diskUsed},
    };
    if (model.battery())
        lines.append(battery(*model.battery(), model.charging()));
    return lines;
}

void SystemPresentation::update()
{
    const QList<SystemLine> lines = describe(*m_model, QLocale());
    if (lines == m_lines)
        return;
    const bool sameCount = lines.size() == m_lines.size();
    m_lines = lines;
    // A row that is made must find its line; one that is about to go may not look for it any more.
    if (!sameCount)
        Q_EMIT countChanged();
    Q_EMIT linesChanged();
}

} // namespace Kestrune
