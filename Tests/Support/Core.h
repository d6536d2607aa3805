#pragma once

#include "Async/Threads.h"
#include "FakePlatform.h"
#include "NotchKit/NotchController.h"
#include "NotchKit/NotchServices.h"
#include "NotchKit/NotchSettings.h"

#include <QCoreApplication>

namespace Kestrune::Fakes {

/// Lets work on other threads end, and what comes of it arrive.
inline void finishWork()
{
    for (int i = 0; i < 4; ++i) {
        Threads::waitForAll(std::chrono::seconds(20));
        QCoreApplication::processEvents();
    }
}

/// The whole core over fake ports: settings, hub and controller.
struct Core : Platform
{
    using Platform::Platform;

    NotchSettings settings{defaults};
    NotchServices services{settings, NotchBranding::fennivar(), ports()};
    NotchController controller{services, ports(), panels};

    NotchScreenModel &model(std::size_t index = 0) { return *controller.notches().at(index).model; }
    const FakePanels::Panel &panel(std::size_t index = 0) { return *panels.alive.at(index); }

    void wait(int milliseconds) { clock.advance(std::chrono::milliseconds(milliseconds)); }

    /// Moves the pointer, the button as it is.
    void moveTo(const QPointF &place) { pointer.now.location = place; }
    void press(bool down) { pointer.now.primaryDown = down; }
};

/// A 1920 × 1080 display without a camera housing, `index` display widths to the right of the main one.
inline Display externalDisplay(int index = 0)
{
    return {QStringLiteral("HDMI-%1").arg(index + 1), QRectF(1920.0 * index, 0, 1920, 1080), 0, {}, {}};
}

/// A notebook display with a camera housing of 200 × 38.
inline Display builtInDisplay(double x)
{
    return {QStringLiteral("eDP-1"), QRectF(x, 0, 1600, 1000), 38, QRectF(x, 962, 700, 38),
            QRectF(x + 900, 962, 700, 38)};
}

} // namespace Kestrune::Fakes
