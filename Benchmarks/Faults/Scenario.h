#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <random>

namespace Faults {

/// What happens by chance; the same seed gives the same decisions.
class Chance
{
public:
    explicit Chance(quint64 seed)
        : m_engine(seed)
    {}

    int between(int least, int most) { return std::uniform_int_distribution(least, most)(m_engine); }
    bool percent(int share) { return between(1, 100) <= share; }
    template <typename List>
    auto &oneOf(List &list)
    {
        return list[static_cast<std::size_t>(between(0, static_cast<int>(std::size(list)) - 1))];
    }

private:
    std::mt19937_64 m_engine;
};

/// One line of figures, and what went wrong.
class Outcome
{
public:
    void figure(const QString &name, const QString &value) { m_figures.append(name + u' ' + value); }
    void figure(const char *name, qint64 value, const char *unit = "");

    /// Told at once, so that a long run can be ended early.
    void fault(const QString &what);
    /// A fault where `most` is exceeded.
    void limit(const char *name, qint64 value, qint64 most, const char *unit = "");
    void leftOut(const QString &why) { figure(QStringLiteral("left out:"), why); }

    /// Prints the line and returns the exit status.
    int print(const QString &scenario) const;

private:
    QStringList m_figures;
    int m_faults = 0;
};

/// Shows how far a long run is, about twenty times.
void tellProgress(int done, int count);

using Scenario = Outcome (*)(int count, Chance &chance);

Outcome kills(int count, Chance &chance);
Outcome displays(int count, Chance &chance);
Outcome monkey(int count, Chance &chance);
Outcome bus(int count, Chance &chance);
Outcome fullDisk(int count, Chance &chance);
Outcome readOnly(int count, Chance &chance);
Outcome day(int count, Chance &chance);

} // namespace Faults
