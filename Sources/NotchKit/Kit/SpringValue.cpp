#include "SpringValue.h"

#include <cmath>

namespace Kestrune {

namespace {

constexpr double kFramesPerSecond = 60;

}

SpringValue::SpringValue(QObject *parent)
    : QObject(parent)
    , m_ticker(*this)
{
    connect(&m_ticker, &QAbstractAnimation::stateChanged, this, &SpringValue::runningChanged);
}

void SpringValue::componentComplete()
{
    m_complete = true;
    finish();
}

void SpringValue::setTarget(double target)
{
    if (std::exchange(m_target, target) == target)
        return;
    Q_EMIT targetChanged();
    restart();
}

void SpringValue::setResponse(double response)
{
    if (std::exchange(m_response, response) == response)
        return;
    Q_EMIT springChanged();
    restart();
}

void SpringValue::setDampingFraction(double damping)
{
    if (std::exchange(m_damping, damping) == damping)
        return;
    Q_EMIT springChanged();
    restart();
}

void SpringValue::restart()
{
    const bool resting = !running() && m_state.position == m_target;
    if (!m_complete || resting)
        return;
    m_ticker.stop();
    m_start = m_state;
    m_ticker.start();
}

void SpringValue::advance(int milliseconds)
{
    m_state = Spring(m_response, m_damping).at(milliseconds / 1000.0, m_start, m_target);
    const bool arrived = std::abs(m_state.position - m_target) < m_precision &&
                         std::abs(m_state.velocity) / kFramesPerSecond < m_precision;
    if (arrived)
        finish();
    else
        Q_EMIT valueChanged();
}

void SpringValue::finish()
{
    m_state = {m_target, 0};
    m_ticker.stop();
    Q_EMIT valueChanged();
}

} // namespace Kestrune
