#include "ScrollGlide.h"

#include <algorithm>

namespace Kestrune {

namespace {

constexpr double kStepsPerSecond = 20;
constexpr double kNear = 0.5; // Steps behind the target: closer, it slows down;
constexpr double kFar = 2;    // farther, it hurries.

} // namespace

void ScrollGlide::setTarget(double target)
{
    m_target = target;
    m_position = std::min(m_position, target);
}

void ScrollGlide::advance(double seconds, double speed, bool last)
{
    const double step = speed / kStepsPerSecond;
    const double left = m_target - m_position;
    if (step <= 0) {
        m_position = m_target;
        return;
    }
    const double behind = left / step;
    const double pace = std::max(behind / kFar, last ? 1.0 : std::min(behind / kNear, 1.0));
    m_position = std::min(m_position + pace * speed * seconds, m_target);
}

} // namespace Kestrune
