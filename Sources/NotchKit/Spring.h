#pragma once

namespace Kestrune {

/// A damped spring pulling towards a target, in closed form: the motion is exact at any time, so that it
/// does not depend on the frame rate. It is the solution of x'' + 2ζω x' + ω² x = 0 for the distance x from
/// the target, with ω = 2π / response and ζ the damping fraction.
class Spring
{
public:
    struct State
    {
        double position = 0;
        double velocity = 0; ///< Per second.
    };

    /// `response`: seconds of one undamped period, above 0. `dampingFraction`: 1 is critical, below it
    /// overshoots.
    Spring(double response, double dampingFraction);

    /// The state `seconds` after the spring was let go at `start`.
    State at(double seconds, const State &start, double target) const;

private:
    double m_frequency;
    double m_damping;
};

} // namespace Kestrune
