#pragma once

namespace Kestrune {

/// Turns a position that advances twenty times a second into one that moves with every frame. The glide
/// follows a step behind, so that it never has to come back; it keeps the speed while the steps arrive on
/// time, slows down rather than stop when one is late, and catches up when it has fallen behind.
class ScrollGlide
{
public:
    double position() const { return m_position; }
    double target() const { return m_target; }
    bool arrived() const { return m_position == m_target; }

    /// Where to glide to. A target behind the position is taken at once: somebody scrolled back.
    void setTarget(double target);

    /// Takes the target at once.
    void jump(double target) { m_position = m_target = target; }

    /// Moves on by `seconds`; `speed` in points per second. With `last`, no other step will come: it goes
    /// straight to the target.
    void advance(double seconds, double speed, bool last);

private:
    double m_position = 0;
    double m_target = 0;
};

} // namespace Kestrune
