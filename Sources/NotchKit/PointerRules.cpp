#include "PointerRules.h"

#include "NotchScreenModel.h"

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kLeaveDelay = 250ms;
constexpr auto kTypingRest = 1s; // Who pauses longer has typed the last key.

} // namespace

bool PointerRules::opens(const Look &look, NotchOpenMode mode, std::chrono::duration<double> delay)
{
    const bool mayRest = mode == NotchOpenMode::hover;
    if (!mayRest || !look.isInside || look.isPressed) {
        m_rested.reset();
        return !mayRest && look.isInside && look.isFreshPress;
    }
    if (!m_rested)
        m_rested = look.now;
    return look.now - *m_rested >= delay;
}

bool PointerRules::closes(const Look &look, NotchScreenModel &model)
{
    if (look.isInside)
        model.setPointerEntered(true);
    if (!model.pinned() && !model.pointerEntered())
        return look.isFreshPress;
    if (model.pinned() || look.isPressed || look.isInside || model.dropTargeted()) {
        m_left.reset();
        return false;
    }
    if (!m_left)
        m_left = look.now;
    return look.now - *m_left > kLeaveDelay && !isTyping(look.now);
}

bool PointerRules::isTyping(Moment now) const { return m_typed && now - *m_typed < kTypingRest; }

void PointerRules::forgetDelays()
{
    m_rested.reset();
    m_left.reset();
}

} // namespace Kestrune
