#include "Spring.h"

#include <cmath>
#include <numbers>

namespace Kestrune {

Spring::Spring(double response, double dampingFraction)
    : m_frequency(2 * std::numbers::pi / response)
    , m_damping(dampingFraction)
{}

Spring::State Spring::at(double seconds, const State &start, double target) const
{
    const double x0 = start.position - target;
    const double v0 = start.velocity;
    const double decay = m_damping * m_frequency;
    const double envelope = std::exp(-decay * seconds);
    const double discriminant = m_damping * m_damping - 1;

    // x = e^(-ζωt) (x0 C + (v0 + ζω x0) S), where C and S are cosine and sine of the damped frequency,
    // their hyperbolic kin when overdamped, and 1 and t at the critical point between the two.
    double c = 1;
    double s = seconds;
    double curvature = 0; // C' = curvature · S
    if (std::abs(discriminant) > 1e-9) {
        const double damped = m_frequency * std::sqrt(std::abs(discriminant));
        const bool over = discriminant > 0;
        c = over ? std::cosh(damped * seconds) : std::cos(damped * seconds);
        s = (over ? std::sinh(damped * seconds) : std::sin(damped * seconds)) / damped;
        curvature = over ? damped * damped : -damped * damped;
    }
    const double b = v0 + decay * x0;
    const double position = envelope * (x0 * c + b * s);
    const double velocity = envelope * (x0 * curvature * s + b * c) - decay * position;
    return {target + position, velocity};
}

} // namespace Kestrune
