#include "NotchController.h"

#include "GlobalHotkey.h"
#include "NotchKit/Platform/DragPasteboard.h"
#include "NotchKit/Platform/FullScreenWindows.h"
#include "NotchKit/Platform/Pointer.h"
#include "NotchKit/Platform/SessionLock.h"
#include "NotchKit/Platform/WindowSystem.h"
#include "NotchPanels.h"

#include <algorithm>

namespace Kestrune {

using namespace std::chrono_literals;

namespace {

constexpr auto kPollInterval = 33ms; // 1/30 s
constexpr auto kClosing = 1s;        // Its motion is over by then.

/// Unlike QRectF::contains, the upper edges do not count, so that neighbouring displays never both match.
bool holds(const QRectF &rect, const QPointF &point)
{
    return point.x() >= rect.left() && point.x() < rect.right() && point.y() >= rect.top() &&
           point.y() < rect.bottom();
}

} // namespace

NotchController::NotchController(NotchServices &services, const Platform &platform, NotchPanels &panels,
                                 QObject *parent)
    : QObject(parent)
    , m_services(services)
    , m_windows(platform.windows)
    , m_clock(platform.clock)
    , m_panels(panels)
    , m_lock(platform.lock)
{
    m_services.surroundings()->collapseAll = [this] { collapseAll(); };
}

NotchController::~NotchController()
{
    stop();
    m_services.surroundings()->collapseAll = nullptr;
}

void NotchController::start()
{
    if (isRunning())
        return;
    m_isRunning = true;
    rebuildPanels();
    m_services.start();
    m_observers = {
        connect(&m_windows.displays(), &Displays::changed, this, &NotchController::rebuildPanels),
        connect(&m_lock, &SessionLock::changed, this, &NotchController::followLock),
        connect(&m_windows.fullScreenWindows(), &FullScreenWindows::changed, this,
                &NotchController::showOrHideAll),
        connect(&m_windows.pointer(), &Pointer::stirred, this, &NotchController::watchPointer),
        connect(m_services.settings(), &NotchSettings::openModeChanged, this, &NotchController::watchPointer),
        connect(&m_services, &NotchServices::hasActivityChanged, this, &NotchController::updateHitAreas),
        // Another program's window over an open notch hides from it where the pointer goes.
        connect(m_services.surroundings(), &NotchSurroundings::nowChanged, this, [this] {
            if (m_services.anyExpanded())
                watchPointer();
        })};
    watchPointer();
    applyShortcut();
}

void NotchController::stop()
{
    if (!isRunning())
        return;
    m_isRunning = false;
    rest();
    for (const auto &observer : std::exchange(m_observers, {}))
        disconnect(observer);
    m_hotkey.reset();
    setHotKeyBinding({});
    collapseAll();
    m_services.stop();
    for (Notch &notch : m_notches)
        notch.panel->orderOut();
    m_notches.clear();
}

void NotchController::watchPointer()
{
    if (m_poller || !m_isRunning || m_lock.isLocked())
        return;
    m_firstPoll = m_clock.after(0ms, [this] { poll(); });
    m_poller = m_clock.every(kPollInterval, [this] { poll(); });
}

void NotchController::rest()
{
    m_firstPoll.reset();
    m_poller.reset();
}

/// Nothing is being waited for, and the pointer does nothing that concerns a notch.
bool NotchController::canRest() const
{
    const auto waits = [](const Notch &notch) { return notch.rules.isWaiting(); };
    return !m_hasChanged && std::ranges::none_of(m_notches, waits) &&
           (m_windows.pointer().isAtRest() || !(m_isOverNotch || m_services.anyExpanded()));
}

void NotchController::followLock()
{
    if (!m_lock.isLocked()) {
        watchPointer();
    } else {
        rest();
        for (Notch &notch : m_notches) {
            notch.rules.forgetDelays();
            if (!notch.model->pinned())
                set(notch, false);
        }
    }
    showOrHideAll();
    tellWhatShows();
}

bool NotchController::knowsFullScreenWindows() const { return m_windows.fullScreenWindows().areTold(); }

bool NotchController::isInSight() const
{
    const QPointF location = m_windows.pointer().location();
    return isRunning() && !m_lock.isLocked() && knowsFullScreenWindows() &&
           std::ranges::any_of(m_notches, [&](const Notch &notch) {
               return notch.isOnScreen && holds(notch.screen.frame, location);
           });
}

bool NotchController::isCovered(const Notch &notch) const
{
    return m_services.settings()->hideOverFullScreen() && notch.screen.safeAreaTop <= 0 &&
           m_windows.fullScreenWindows().cover(notch.screen.name);
}

void NotchController::showOrHide(Notch &notch)
{
    const bool isClosed = !notch.model->expanded() && !notch.closing;
    const bool wanted = !m_lock.isLocked() && !(isClosed && isCovered(notch));
    if (std::exchange(notch.isOnScreen, wanted) == wanted)
        return;
    if (wanted)
        notch.panel->orderFront();
    else
        notch.panel->orderOut();
}

void NotchController::showOrHideAll()
{
    for (Notch &notch : m_notches)
        showOrHide(notch);
}

void NotchController::settingsChanged()
{
    if (!isRunning())
        return;
    rebuildPanels();
    showOrHideAll();
    applyShortcut();
}

void NotchController::applyShortcut()
{
    m_hotkey.reset();
    if (!m_services.settings()->shortcutEnabled()) {
        setHotKeyBinding({});
        return;
    }
    HotKeys &keys = m_windows.hotKeys();
    const KeyCombination wanted = m_services.settings()->hotKeys();
    m_hotkey = GlobalHotkey::make(
        keys, wanted.keyCode, wanted.modifiers, [this] { toggle(); },
        [this](const HotKeyBinding &binding) { setHotKeyBinding(binding); });
    const HotKeyBinding binding = m_hotkey ? keys.firstBinding() : HotKeyBinding{HotKeyBinding::State::taken};
    if (binding.state != HotKeyBinding::State::pending)
        setHotKeyBinding(binding);
}

void NotchController::setHotKeyBinding(const HotKeyBinding &binding)
{
    if (std::exchange(m_hotKeyBinding, binding) != binding)
        Q_EMIT hotKeyBindingChanged();
}

QList<Display> NotchController::wantedScreens() const
{
    const QList<Display> all = m_windows.displays().all();
    const auto hasHousing = [](const Display &display) { return display.safeAreaTop > 0; };
    QList<Display> candidates;
    if (m_services.settings()->allDisplays()) {
        candidates = all;
    } else if (const auto builtIn = std::ranges::find_if(all, hasHousing); builtIn != all.end()) {
        candidates = {*builtIn};
    } else if (const auto main = m_windows.displays().main()) {
        candidates = {*main};
    }
    if (!m_services.settings()->showWithoutNotch())
        candidates.removeIf([&](const Display &display) { return !hasHousing(display); });
    const auto once = std::ranges::find(all, m_shownOnce, &Display::name);
    if (once != all.end() && !candidates.contains(*once))
        candidates.append(*once);
    return candidates;
}

void NotchController::rebuildPanels()
{
    const QList<Display> wanted = wantedScreens();
    const auto gone = [&](const Notch &notch) {
        return std::ranges::none_of(wanted,
                                    [&](const Display &screen) { return screen.name == notch.screen.name; });
    };
    for (Notch &notch : m_notches) {
        if (!gone(notch))
            continue;
        set(notch, false);
        notch.panel->orderOut();
        notch.panel.reset(); // Where the others move up into its place, the model goes first.
    }
    std::erase_if(m_notches, gone);
    for (const Display &screen : wanted) {
        if (Notch *notch = find(screen.name))
            updateNotch(*notch, screen);
        else
            addNotch(screen);
    }
}

void NotchController::updateNotch(Notch &notch, const Display &screen)
{
    notch.screen = screen;
    notch.model->setGeometry(geometryOn(screen));
    notch.panel->setBelowPanels(isBelowPanels(screen));
    notch.panel->setFrame(notch.model->geometry().panelFrame());
    notch.hitArea = {};
    updateHitArea(notch);
}

void NotchController::addNotch(const Display &screen)
{
    auto model = std::make_unique<NotchScreenModel>(geometryOn(screen));
    model->setSelected(firstTool());
    auto panel = m_panels.create(model->geometry().panelFrame(), *model, m_services);
    panel->setBelowPanels(isBelowPanels(screen));
    connect(model.get(), &NotchScreenModel::keyboardWanted, this,
            [panel = panel.get()] { panel->makeKey(); });
    connect(model.get(), &NotchScreenModel::closeWanted, this, [this, name = screen.name] {
        if (Notch *notch = find(name))
            set(*notch, false);
    });
    connect(model.get(), &NotchScreenModel::typed, this, [this, name = screen.name] {
        if (Notch *notch = find(name))
            notch->rules.userTyped(m_clock.uptime());
    });
    connect(model.get(), &NotchScreenModel::pinnedChanged, this, &NotchController::watchPointer);
    connect(model.get(), &NotchScreenModel::dropTargetedChanged, this, &NotchController::watchPointer);
    m_notches.push_back({screen, std::move(model), std::move(panel), {}});
    updateHitArea(m_notches.back());
    showOrHide(m_notches.back());
}

bool NotchController::isBelowPanels(const Display &screen) const
{
    const NotchPlacement placement = m_services.settings()->placement();
    return placement == NotchPlacement::below ||
           (placement == NotchPlacement::automatic && screen.safeAreaTop <= 0);
}

NotchGeometry NotchController::geometryOn(const Display &screen) const
{
    NotchGeometry geometry(screen);
    geometry.topInset = isBelowPanels(screen) ? screen.panelsTop : 0;
    return geometry;
}

NotchTool NotchController::firstTool() const
{
    const NotchTools tools = m_services.settings()->tools();
    return tools.isEmpty() ? NotchTool::note : tools.constFirst();
}

NotchController::Notch *NotchController::find(const QString &name)
{
    const auto found =
        std::ranges::find_if(m_notches, [&](const Notch &notch) { return notch.screen.name == name; });
    return found == m_notches.end() ? nullptr : &*found;
}

NotchController::Notch *NotchController::mainNotch()
{
    const auto main = m_windows.displays().main();
    Notch *notch = main ? find(main->name) : nullptr;
    if (notch || m_notches.empty())
        return notch;
    return &m_notches.front();
}

NotchController::Notch *NotchController::notchUnderPointer()
{
    const QPointF location = m_windows.pointer().location();
    for (const Display &screen : m_windows.displays().all()) {
        if (!holds(screen.frame, location))
            continue;
        if (Notch *notch = find(screen.name))
            return notch;
    }
    return mainNotch();
}

NotchController::Notch *NotchController::orOnce(Notch *notch)
{
    const auto main = m_windows.displays().main();
    if (notch || !main || !isRunning() || m_lock.isLocked())
        return notch;
    const QPointF location = m_windows.pointer().location();
    const QList<Display> all = m_windows.displays().all();
    const auto under =
        std::ranges::find_if(all, [&](const Display &screen) { return holds(screen.frame, location); });
    m_shownOnce = under == all.end() ? main->name : under->name;
    rebuildPanels();
    return find(m_shownOnce);
}

void NotchController::toggle()
{
    Notch *notch = orOnce(notchUnderPointer());
    if (!notch || m_lock.isLocked())
        return;
    set(*notch, !notch->model->expanded());
    if (notch->model->expanded())
        notch->panel->makeKey();
}

void NotchController::open(std::optional<NotchTool> tool, bool takeKeyboard)
{
    Notch *notch = orOnce(mainNotch());
    if (!notch || m_lock.isLocked())
        return;
    select(*notch->model, tool);
    set(*notch, true);
    if (takeKeyboard)
        notch->panel->makeKey();
}

void NotchController::select(NotchScreenModel &model, std::optional<NotchTool> tool)
{
    if (!tool || !m_services.settings()->tools().contains(*tool) || model.selected() == *tool)
        return;
    model.setSelected(*tool);
    if (model.expanded() && !m_lock.isLocked())
        m_services.show(*tool);
}

void NotchController::collapseAll()
{
    for (Notch &notch : m_notches)
        set(notch, false);
}

void NotchController::set(Notch &notch, bool expanded)
{
    NotchScreenModel &model = *notch.model;
    if (model.expanded() == expanded || (expanded && m_lock.isLocked()))
        return;
    if (expanded && !m_services.settings()->tools().contains(model.selected()))
        model.setSelected(firstTool());
    model.setExpanded(expanded);
    model.setPointerEntered(false);
    notch.rules.forgetDelays();
    updateHitArea(notch);
    m_hasChanged = true;
    watchPointer();
    if (expanded)
        opened(notch);
    else
        closed(notch);
}

void NotchController::opened(Notch &notch)
{
    m_services.setAnyExpanded(true);
    m_services.show(notch.model->selected());
    notch.closing.reset();
    showOrHide(notch);
}

void NotchController::closed(Notch &notch)
{
    notch.panel->resignKey();
    tellWhatShows();
    notch.closing = m_clock.after(kClosing, [this, name = notch.screen.name] { hasClosed(name); });
}

/// `name` is a copy: what called this goes with the timer.
void NotchController::hasClosed(QString name) // NOLINT(performance-unnecessary-value-param)
{
    Notch *notch = find(name);
    if (!notch)
        return;
    notch->closing.reset();
    showOrHide(*notch);
    if (m_shownOnce != name)
        return;
    m_shownOnce.clear();
    rebuildPanels();
}

void NotchController::tellWhatShows()
{
    const auto open = std::ranges::find_if(m_notches, [this](const Notch &candidate) {
        return candidate.model->expanded() && !m_lock.isLocked();
    });
    m_services.setAnyExpanded(open != m_notches.end());
    m_services.show(open == m_notches.end() ? std::nullopt : std::optional(open->model->selected()));
}

void NotchController::updateHitArea(Notch &notch)
{
    const QRectF area = notch.model->geometry().hitRect(notch.model->expanded(), m_services.hasActivity());
    if (area == notch.hitArea)
        return;
    notch.hitArea = area;
    notch.panel->setHitArea(area);
    m_hasChanged = true;
}

void NotchController::updateHitAreas()
{
    for (Notch &notch : m_notches)
        updateHitArea(notch);
    watchPointer();
}

void NotchController::poll()
{
    const PointerSample pointer = m_windows.pointer().sample();
    const bool freshPress = pointer.primaryDown && !m_wasPressed;
    m_wasPressed = pointer.primaryDown;
    m_isOverNotch = false;
    // Of a drag, the first sample tells the press, and only the next one the place.
    m_hasChanged = freshPress;
    for (Notch &notch : m_notches) {
        const bool inside = holds(notch.hitArea, pointer.location);
        m_isOverNotch = m_isOverNotch || inside;
        follow(notch, {inside, pointer.primaryDown, freshPress, m_clock.uptime()});
    }
    if (canRest())
        rest();
}

void NotchController::follow(Notch &notch, const PointerRules::Look &look)
{
    const NotchSettings &settings = *m_services.settings();
    if (notch.model->expanded()) {
        if (notch.rules.closes(look, *notch.model))
            set(notch, false);
        return;
    }
    PointerRules::Look shown = look;
    shown.isInside = look.isInside && notch.isOnScreen;
    const bool isDragged = shown.isInside && look.isPressed && !look.isFreshPress;
    if (isDragged && settings.tools().contains(NotchTool::shelf) && m_windows.drags().holdsFileUrls()) {
        notch.model->setSelected(NotchTool::shelf);
        set(notch, true);
    } else if (notch.rules.opens(shown, settings.openMode(),
                                 std::chrono::duration<double>(settings.hoverDelay()))) {
        set(notch, true);
    }
}

} // namespace Kestrune
