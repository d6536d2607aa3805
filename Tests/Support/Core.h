#pragma once

#include "Async/Threads.h"
#include "FakePlatform.h"
#include "NotchKit/NotchController.h"
#include "NotchKit/NotchServices.h"
#include "NotchKit/NotchSettings.h"
#include "Support/TestRegistry.h"

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
    void moveTo(const QPointF &place) { pointer.set({place, pointer.now.primaryDown}); }
    void press(bool down) { pointer.set({pointer.now.location, down}); }
    /// The same, and that many milliseconds after it.
    void moveTo(const QPointF &place, int milliseconds)
    {
        moveTo(place);
        wait(milliseconds);
    }
    void press(bool down, int milliseconds)
    {
        press(down);
        wait(milliseconds);
    }

    /// Some notch is open with that tool, or all are closed.
    void show(std::optional<NotchTool> tool)
    {
        services.setAnyExpanded(tool.has_value());
        services.show(tool);
    }
    /// The last request to the web is answered.
    void reply(const HttpReply &reply)
    {
        http.questions.answerLast(reply);
        QCoreApplication::processEvents();
    }
};

/// A 1920 × 1080 display without a camera housing, `index` display widths to the right of the main one.
inline Display externalDisplay(int index = 0)
{
    return {QStringLiteral("HDMI-%1").arg(index + 1), QRectF(1920.0 * index, 0, 1920, 1080), 0, {}, {}};
}

/// The core with one such display, or others, started.
struct StartedCore : Core
{
    explicit StartedCore(MemoryDefaults::Values stored = {},
                         const QList<Display> &shown = {externalDisplay()})
        : Core(std::move(stored))
    {
        displays.displays = shown;
        controller.start();
    }
};

/// A notebook display with a camera housing of 200 × 38.
inline Display builtInDisplay(double x)
{
    return {QStringLiteral("eDP-1"), QRectF(x, 0, 1600, 1000), 38, QRectF(x, 962, 700, 38),
            QRectF(x + 900, 962, 700, 38)};
}

} // namespace Kestrune::Fakes
