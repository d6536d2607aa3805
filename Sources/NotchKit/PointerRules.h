#pragma once

#include "Catalogue.h"

#include <chrono>
#include <optional>

namespace Kestrune {

class NotchScreenModel;

/// By which looks at the pointer one display's notch opens and closes. Main thread only.
class PointerRules
{
public:
    using Moment = std::chrono::nanoseconds; ///< Since the machine started, as the clock's uptime.

    /// What one look at the pointer found.
    struct Look
    {
        bool isInside; ///< Over the notch.
        bool isPressed;
        bool isFreshPress; ///< Not yet pressed at the look before.
        Moment now;
    };

    /// Whether it opens the closed notch: a press on it, or that it has rested there for `delay`.
    bool opens(const Look &look, NotchOpenMode mode, std::chrono::duration<double> delay);

    /// Whether it closes the open notch: a press beside one that it has not entered, or that it left and does
    /// not come back. Not while the user types, so that no keystroke goes elsewhere. Tells the model that it
    /// entered.
    bool closes(const Look &look, NotchScreenModel &model);

    /// Whether a delay runs, for which it has to be looked at again.
    bool isWaiting() const { return m_rested || m_left; }

    void forgetDelays();
    void userTyped(Moment now) { m_typed = now; }

private:
    bool isTyping(Moment now) const;

    std::optional<Moment> m_rested; ///< Since when it rests over the closed notch.
    std::optional<Moment> m_left;   ///< When it left the open notch.
    std::optional<Moment> m_typed;
};

} // namespace Kestrune
