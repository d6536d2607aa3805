#include "Scenario.h"

#include <algorithm>
#include <cstdio>

namespace Faults {

void Outcome::figure(const char *name, qint64 value, const char *unit)
{
    const QString text = QString::number(value);
    figure(QString::fromLatin1(name), *unit ? text + u' ' + QLatin1String(unit) : text);
}

void Outcome::fault(const QString &what)
{
    ++m_faults;
    std::fprintf(stderr, "FAULT: %s\n", qPrintable(what));
}

void Outcome::limit(const char *name, qint64 value, qint64 most, const char *unit)
{
    figure(name, value, unit);
    if (value > most)
        fault(QStringLiteral("%1 is %2 %3, at most %4")
                  .arg(QLatin1String(name))
                  .arg(value)
                  .arg(QLatin1String(unit))
                  .arg(most));
}

int Outcome::print(const QString &scenario) const
{
    std::printf("%-9s %s | %s\n", qPrintable(scenario), m_faults ? "FAULTY" : "sound ",
                qPrintable(m_figures.join(QStringLiteral(" | "))));
    std::fflush(stdout);
    return m_faults ? 1 : 0;
}

void tellProgress(int done, int count)
{
    if (done % std::max(1, count / 20) == 0)
        std::fprintf(stderr, "%d of %d\n", done, count);
}

} // namespace Faults
