#include "Shortcut.h"

namespace Kestrune {

namespace {

/// Longer than any desktop waits before a key that is held down repeats, in ms: who was told of no release
/// for so long has missed it.
constexpr qint64 kLongestRepeat = 3000;

} // namespace

void Shortcut::keyWentDown()
{
    const bool repeated = std::exchange(m_down, true) && !m_sinceDown.hasExpired(kLongestRepeat);
    m_sinceDown.start();
    if (!repeated)
        Q_EMIT pressed();
}

void Shortcut::setBinding(const HotKeyBinding &binding)
{
    if (std::exchange(m_binding, binding) != binding)
        Q_EMIT bindingChanged(binding);
}

} // namespace Kestrune
