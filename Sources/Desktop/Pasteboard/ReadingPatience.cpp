#include "ReadingPatience.h"

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kMostSilence = 2s;
constexpr auto kMostInAll = 15s;
constexpr auto kMostSilenceHurried = 250ms;
constexpr auto kMostHurried = 2s;

} // namespace

ReadingPatience::Clock::time_point ReadingPatience::deadline() const
{
    const auto latest = m_started + kMostInAll;
    if (!m_hurried)
        return std::min<Clock::time_point>(latest, m_progress + kMostSilence);
    return std::min<Clock::time_point>(
        {latest, *m_hurried + kMostHurried, std::max(m_progress, *m_hurried) + kMostSilenceHurried});
}

} // namespace Kestrune
