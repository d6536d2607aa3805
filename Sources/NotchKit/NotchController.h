#pragma once

#include "NotchKit/Platform/Clock.h"
#include "NotchKit/Platform/Displays.h"
#include "NotchKit/Platform/HotKeys.h"
#include "NotchKit/Platform/NotchPanel.h"
#include "NotchScreenModel.h"
#include "NotchServices.h"
#include "PointerRules.h"

#include <memory>
#include <optional>
#include <vector>

namespace Kestrune {

class GlobalHotkey;
class NotchPanels;
class WindowSystem;

/// Keeps one panel and one screen model per wanted display, and opens and closes them: it polls the
/// pointer thirty times a second from when it stirs until nothing can come of it, and owns the hot key. On a
/// display without a housing that a full-screen window covers, the closed notch is not on screen and does not
/// open by pointer. While the session is locked no panel is on screen, nothing opens, and what a pinned notch
/// shows counts as hidden. Main thread only.
class NotchController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool knowsFullScreenWindows READ knowsFullScreenWindows CONSTANT)

public:
    /// One display's notch.
    struct Notch
    {
        Display screen;
        std::unique_ptr<NotchScreenModel> model;
        std::unique_ptr<NotchPanel> panel;
        QRectF hitArea; ///< What the panel was told last.
        bool isOnScreen = false;
        std::unique_ptr<RunningTimer> closing{}; ///< Until it may go from the screen, closed.
        PointerRules rules{};
    };
    using Notches = std::vector<Notch>;

    /// Nothing starts yet. The services, the ports and the panels' maker outlive the controller.
    NotchController(NotchServices &services, const Platform &platform, NotchPanels &panels,
                    QObject *parent = nullptr);
    ~NotchController() override;

    bool isRunning() const { return m_isRunning; }
    const Notches &notches() const { return m_notches; }
    /// Whether the setting that hides the notch over them makes a difference.
    bool knowsFullScreenWindows() const;
    bool hasHotkey() const { return m_hotkey != nullptr; }
    /// What came of the hot key; while it is asked for anew, what came of it before. Pending when it is off.
    const HotKeyBinding &hotKeyBinding() const { return m_hotKeyBinding; }

    /// Whether a notch is on screen on the display where the user's pointer is. No where a full-screen window
    /// may lie over it without anybody telling.
    bool isInSight() const;

    void start();
    void stop();

    /// The choice of displays or the hot key may have changed.
    void settingsChanged();

    /// Opens or closes the notch of the display under the pointer, else the main display's, else the first. A
    /// notch opened this way takes the keyboard. Where no display has one, that under the pointer shows one
    /// until it closes.
    void toggle();

    /// Opens the main display's notch, else the first, on `tool` if it is offered, else on what it showed
    /// last. `takeKeyboard` is for a user who asks for the notch with a key.
    void open(std::optional<NotchTool> tool, bool takeKeyboard = false);

    /// Closes every open notch, pinned ones included.
    void collapseAll();

Q_SIGNALS:
    void hotKeyBindingChanged();

private:
    QList<Display> wantedScreens() const;
    void followLock();
    bool isCovered(const Notch &notch) const;
    void showOrHide(Notch &notch);
    void showOrHideAll();
    void watchPointer();
    void rest();
    bool canRest() const;
    void rebuildPanels();
    void addNotch(const Display &screen);
    void updateNotch(Notch &notch, const Display &screen);
    bool isBelowPanels(const Display &screen) const;
    NotchGeometry geometryOn(const Display &screen) const;
    NotchTool firstTool() const;
    Notch *find(const QString &name);
    Notch *mainNotch();
    Notch *notchUnderPointer();
    Notch *orOnce(Notch *notch);
    void applyShortcut();
    void setHotKeyBinding(const HotKeyBinding &binding);
    void select(NotchScreenModel &model, std::optional<NotchTool> tool);
    void set(Notch &notch, bool expanded);
    void opened(Notch &notch);
    void closed(Notch &notch);
    void hasClosed(QString name);
    void tellWhatShows();
    void updateHitArea(Notch &notch);
    void updateHitAreas();
    void poll();
    void follow(Notch &notch, const PointerRules::Look &look);

    NotchServices &m_services;
    WindowSystem &m_windows;
    Clock &m_clock;
    NotchPanels &m_panels;
    Notches m_notches;
    SessionLock &m_lock;
    bool m_isRunning = false;
    std::unique_ptr<RunningTimer> m_firstPoll; ///< Comes at once.
    std::unique_ptr<RunningTimer>
        m_poller;               ///< None while nothing can come of the pointer, or the screen is locked.
    bool m_isOverNotch = false; ///< The pointer, at the last poll.
    bool m_hasChanged =
        false; ///< A notch, or where it is, since the last poll began: the next one has to see.
    bool m_wasPressed = false;
    QString m_shownOnce; ///< A display without a notch of its own that shows one until it closes.
    std::unique_ptr<GlobalHotkey> m_hotkey;
    HotKeyBinding m_hotKeyBinding;
    std::vector<QMetaObject::Connection> m_observers;
};

} // namespace Kestrune
