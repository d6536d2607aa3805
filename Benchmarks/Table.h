#pragma once

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace Benchmarks {

/// One line of the table that every program here prints.
struct Row
{
    std::string what;
    double measured;
    double budget;
    const char *unit;
    std::string remark; ///< How far the figure can be trusted; may be empty.
    bool atLeast = false;
};

/// Prints rows at once, each with its verdict, and remembers whether one missed its budget.
class Table
{
public:
    void add(const Row &row)
    {
        const bool met = row.atLeast ? row.measured >= row.budget : row.measured <= row.budget;
        m_missed = m_missed || !met;
        // The sign is three bytes wide and one column.
        std::printf("%-52s %9.2f %-8s %s %7.2f  %-6s  %s\n", row.what.c_str(), row.measured, row.unit,
                    row.atLeast ? "≥" : "≤", row.budget, met ? "met" : "MISSED", row.remark.c_str());
        std::fflush(stdout);
    }

    /// A figure without a budget, which helps to understand the others.
    static void note(const std::string &what, double measured, const char *unit, const char *remark = "")
    {
        std::printf("%-52s %9.2f %-8s %19s%s\n", what.c_str(), measured, unit, "", remark);
        std::fflush(stdout);
    }

    int exitStatus() const { return m_missed ? 1 : 0; }

private:
    bool m_missed = false;
};

/// The value that `share` of the samples do not exceed; 0.5 gives the median.
inline double quantile(std::vector<double> samples, double share)
{
    if (samples.empty())
        return 0;
    const auto rank = static_cast<std::ptrdiff_t>(share * static_cast<double>(samples.size() - 1) + 0.5);
    std::nth_element(samples.begin(), samples.begin() + rank, samples.end());
    return samples[static_cast<std::size_t>(rank)];
}

inline double median(const std::vector<double> &samples) { return quantile(samples, 0.5); }

} // namespace Benchmarks
