#include "NotchKit/Tools/Timer/TimerModel.h"
#include "Support/Core.h"

using Fakes::builtInDisplay;
using Fakes::externalDisplay;

constexpr QPointF kNotch(960, 1070); ///< In the closed notch of the first external display.
constexpr QPointF kPanel(700, 800);  ///< In the open notch only.
constexpr QPointF kOutside(300, 300);

/// Where the pointer is, with its button down or not, and whether a notch is open after that time.
struct Step
{
    QPointF place;
    bool down;
    int milliseconds;
    bool open;
};
using Steps = QList<Step>;

class NotchControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displaysAreChosen_data()
    {
        columns<bool, bool, bool, QString>();
        QTest::newRow("main") << false << false << true << "HDMI-1";
        QTest::newRow("none drawn") << false << false << false << "";
        QTest::newRow("built-in wins") << true << false << true << "eDP-1";
        QTest::newRow("all") << true << true << true << "HDMI-1 HDMI-2 eDP-1";
        QTest::newRow("all with a housing") << true << true << false << "eDP-1";
    }

    void displaysAreChosen()
    {
        const auto [builtIn, allDisplays, showWithoutNotch, notches] = fetched<bool, bool, bool, QString>();
        Fakes::Core core;
        core.displays.displays = {externalDisplay(0), externalDisplay(1)};
        if (builtIn)
            core.displays.displays.append(builtInDisplay(-1600));
        core.settings.setAllDisplays(allDisplays);
        core.settings.setShowWithoutNotch(showWithoutNotch);
        core.controller.start();
        const QStringList names =
            each(core.controller.notches(), [](const auto &notch) { return notch.screen.name; });
        QCOMPARE(names.join(u' '), notches);
        if (builtIn)
            QCOMPARE(core.controller.notches().back().model->geometry().notchSize, QSizeF(200, 38));
    }

    void panelsFollowTheDisplays()
    {
        Fakes::StartedCore core({{u"notch.allDisplays"_s, true}});
        NotchScreenModel *first = &core.model();
        QVERIFY(core.panel().shown);
        QCOMPARE(core.panel().frame, QRectF(520, 690, 880, 390));
        core.displays.displays = {externalDisplay(0), externalDisplay(1)};
        Q_EMIT core.displays.changed();
        QCOMPARE(core.panels.alive.size(), 2U);
        QCOMPARE(&core.model(), first);
        core.controller.open(NotchTool::note);
        core.displays.displays = {externalDisplay(1)};
        Q_EMIT core.displays.changed();
        QCOMPARE(core.panels.alive.size(), 1U);
        QCOMPARE(core.panels.outlivedModels, 0);
        QVERIFY(!core.services.anyExpanded() && !core.services.visibleTool());
        core.displays.displays[0].frame = QRectF(0, 0, 2560, 1440);
        Q_EMIT core.displays.changed();
        QCOMPARE(core.panel().frame, QRectF(840, 1050, 880, 390));
        QCOMPARE(core.panel().hitArea, core.model().geometry().hitRect(false, false));
    }

    void hangsBelowPanels_data()
    {
        columns<bool, NotchPlacement, double>();
        QTest::newRow("by itself") << false << NotchPlacement::automatic << 30.0;
        QTest::newRow("by itself, with a housing") << true << NotchPlacement::automatic << 0.0;
        QTest::newRow("over") << false << NotchPlacement::over << 0.0;
        QTest::newRow("below, with a housing") << true << NotchPlacement::below << 30.0;
    }

    void hangsBelowPanels()
    {
        const auto [housing, placement, down] = fetched<bool, NotchPlacement, double>();
        Fakes::Core core;
        auto display = housing ? builtInDisplay(0) : externalDisplay(0);
        core.displays.displays = {display};
        core.settings.setPlacement(placement);
        core.controller.start();
        const QRectF atTheEdge = core.panel().frame;
        const QRectF hitArea = core.panel().hitArea;
        display.panelsTop = 30;
        core.displays.displays = {display};
        Q_EMIT core.displays.changed();
        QCOMPARE(core.panel().frame, atTheEdge.translated(0, -down));
        QCOMPARE(core.panel().hitArea, hitArea.translated(0, -down));
        QCOMPARE(core.panel().below, down > 0);
    }

    void hidesOverFullScreenWindows_data() { noAndYes("without a housing", "with one"); }
    void hidesOverFullScreenWindows()
    {
        const auto [housing] = fetched<bool>();
        Fakes::StartedCore core;
        const auto display = housing ? builtInDisplay(0) : externalDisplay(0);
        core.displays.displays = {display};
        Q_EMIT core.displays.changed();
        const QPointF notch = core.panel().hitArea.center();
        core.fullScreenWindows.set({display.name});
        QCOMPARE(core.panel().shown, housing);
        core.moveTo(notch, 2000);
        QCOMPARE(core.model().expanded(), housing);
        core.moveTo(kOutside, 2000);
        core.controller.toggle();
        QVERIFY(core.panel().shown && core.panel().key);
        core.controller.toggle();
        QVERIFY2(core.panel().shown, "it closes before it goes");
        core.wait(2000);
        QCOMPARE(core.panel().shown, housing);
        core.settings.setHideOverFullScreen(false);
        core.controller.settingsChanged();
        QVERIFY(core.panel().shown);
        core.settings.setHideOverFullScreen(true);
        core.controller.settingsChanged();
        core.fullScreenWindows.set({});
        QVERIFY(core.panel().shown);
        core.moveTo(notch, 2000);
        QVERIFY(core.model().expanded());
    }

    /// Where no display is to have a notch of its own.
    void showsOnceWhereThereIsNone_data() { noAndYes("toggled", "opened"); }
    void showsOnceWhereThereIsNone()
    {
        const auto [opens] = fetched<bool>();
        Fakes::StartedCore core({{u"notch.showWithoutNotch"_s, false}});
        core.displays.displays = {externalDisplay(0), externalDisplay(1)};
        Q_EMIT core.displays.changed();
        QVERIFY(core.panels.alive.empty());
        core.moveTo(kOutside + QPointF(1920, 0));
        if (opens)
            core.controller.open(NotchTool::note, true);
        else
            core.controller.toggle();
        QCOMPARE(core.controller.notches().front().screen.name, externalDisplay(1).name);
        QVERIFY(core.model().expanded() && core.panel().shown && core.panel().key);
        core.controller.toggle();
        QCOMPARE(core.panels.alive.size(), 1U);
        core.wait(2000);
        QVERIFY(core.panels.alive.empty() && core.panels.outlivedModels == 0);
    }

    /// Nothing is on screen or opens; what is pinned comes back, and shows nothing meanwhile.
    void hidesFromTheLock()
    {
        Fakes::StartedCore core({{u"notch.allDisplays"_s, true}});
        core.displays.displays = {externalDisplay(0), externalDisplay(1)};
        Q_EMIT core.displays.changed();
        core.controller.open(NotchTool::mirror);
        core.model().setPinned(true);
        NotchScreenModel &other = *core.controller.notches().back().model;
        core.moveTo(kNotch + QPointF(1920, 0));
        core.controller.toggle();
        QVERIFY(other.expanded());

        core.lock.set(true);
        QVERIFY(!other.expanded() && core.model().expanded());
        QVERIFY(!core.services.anyExpanded() && !core.services.visibleTool());
        core.controller.open(NotchTool::note, true);
        core.controller.toggle();
        core.clock.advance(2s);
        core.displays.displays.append(externalDisplay(2));
        Q_EMIT core.displays.changed();
        for (const auto *panel : core.panels.alive)
            QVERIFY(!panel->shown && !panel->key);
        QVERIFY(!other.expanded() && !core.services.anyExpanded());

        core.lock.set(false);
        QVERIFY(std::ranges::all_of(core.panels.alive, &Fakes::FakePanels::Panel::shown));
        QVERIFY(core.services.anyExpanded() && core.services.visibleTool() == NotchTool::mirror);
        core.clock.advance(2s);
        QVERIFY(other.expanded());
    }

    void thePointerOpensAndCloses_data()
    {
        const auto row = columns<Fakes::MemoryDefaults::Values, Steps>();
        const auto hovering = [](double delay) {
            return Fakes::MemoryDefaults::Values{{u"notch.hoverDelay"_s, delay}};
        };
        constexpr bool down = true, open = true;
        row("at once", hovering(0), {{kOutside, !down, 500, !open}, {kNotch, !down, 0, open}});
        row("as shipped", hovering(0.12), {{kNotch, !down, 131, !open}, {kNotch, !down, 1, open}});
        row("after long", hovering(0.8), {{kNotch, !down, 824, !open}, {kNotch, !down, 1, open}});
        row("pressing cancels the hover", {},
            {{kNotch, !down, 99, !open},
             {kNotch, down, 1000, !open},
             {kNotch, !down, 132, !open},
             {kNotch, !down, 66, open}});
        row("a press that began outside is none", {{u"notch.openMode"_s, u"click"_s}},
            {{kNotch, !down, 2000, !open},
             {kOutside, down, 33, !open},
             {kNotch, down, 500, !open},
             {kNotch, !down, 33, !open},
             {kNotch, down, 33, open}});
        row("each exit counts anew", {},
            {{kNotch, !down, 200, open},
             {kPanel, !down, 33, open},
             {kOutside, !down, 198, open},
             {kPanel, !down, 33, open},
             {kOutside, !down, 264, open},
             {kOutside, !down, 66, !open}});
        row("a press holds it", {},
            {{kNotch, !down, 300, open},
             {kNotch, down, 33, open},
             {kOutside, down, 5000, open},
             {kOutside, !down, 330, !open}});
    }

    void thePointerOpensAndCloses()
    {
        const auto [stored, steps] = fetched<Fakes::MemoryDefaults::Values, Steps>();
        Fakes::StartedCore core(stored);
        for (const Step &step : steps) {
            core.press(step.down);
            core.moveTo(step.place, step.milliseconds);
            QCOMPARE(core.model().expanded(), step.open);
            QVERIFY(!core.panel().key);
            QCOMPARE(core.services.visibleTool(), step.open ? std::optional(NotchTool::home) : std::nullopt);
        }
    }

    void filesOpenTheShelf_data()
    {
        columns<QStringList, bool, bool, bool>();
        const QStringList with{u"note"_s, u"shelf"_s};
        QTest::newRow("files") << with << true << false << true;
        QTest::newRow("in click mode") << with << true << true << true;
        QTest::newRow("something else") << with << false << false << false;
        QTest::newRow("no shelf") << QStringList{u"note"_s} << true << false << false;
    }

    void filesOpenTheShelf()
    {
        const auto [tools, files, click, opens] = fetched<QStringList, bool, bool, bool>();
        Fakes::Core core({{u"notch.tools"_s, tools}});
        core.settings.setTools(fromRawValues<NotchTool>(tools));
        core.settings.setOpenMode(click ? NotchOpenMode::click : NotchOpenMode::hover);
        core.displays.displays = {externalDisplay()};
        core.controller.start();
        if (files)
            core.drags.files = {QUrl(u"file:///a"_s)};
        core.moveTo(kOutside);
        core.press(true, 33);
        core.moveTo(kNotch, 33);
        QCOMPARE(core.model().expanded(), opens);
        QCOMPARE(core.model().selected(), opens ? NotchTool::shelf : NotchTool::note);
    }

    /// Some desktops tell of a drag only when it is over the notch: its press first, then its place.
    void aDragThatComesFromNowhereOpensTheShelf()
    {
        Fakes::StartedCore core;
        core.drags.files = {QUrl(u"file:///a"_s)};
        core.moveTo(kOutside, 500);
        core.press(true, 0);
        core.pointer.now.location = kNotch;
        core.wait(66);
        QVERIFY(core.model().expanded());
        QCOMPARE(core.model().selected(), NotchTool::shelf);
    }

    void whatHoldsTheNotchOpen_data() { noAndYes("pinned", "drag over it"); }

    void whatHoldsTheNotchOpen()
    {
        const auto [drag] = fetched<bool>();
        Fakes::StartedCore core;
        core.moveTo(kNotch, 300);
        const auto hold = drag ? &NotchScreenModel::setDropTargeted : &NotchScreenModel::setPinned;
        std::invoke(hold, core.model(), true);
        core.wait(33);
        core.moveTo(kOutside, 5000);
        QVERIFY(core.model().expanded());
        std::invoke(hold, core.model(), false);
        core.wait(330);
        QVERIFY(!core.model().expanded());
    }

    void typingHoldsTheNotchOpen()
    {
        Fakes::StartedCore core;
        core.controller.open(NotchTool::note);
        core.moveTo(kPanel, 100);
        Q_EMIT core.model().typed();
        core.moveTo(kOutside, 700);
        QVERIFY(core.model().expanded());
        Q_EMIT core.model().typed();
        core.wait(900);
        QVERIFY2(core.model().expanded(), "less than a second ago");
        core.wait(200);
        QVERIFY(!core.model().expanded());

        core.controller.open(NotchTool::note);
        core.moveTo(kPanel, 1100);
        core.moveTo(kOutside, 400);
        QVERIFY2(!core.model().expanded(), "the typing had rested before");
    }

    void unvisitedNotchWaits()
    {
        Fakes::StartedCore core;
        core.moveTo(kOutside);
        core.controller.open(std::nullopt);
        core.wait(10'000);
        QVERIFY(core.model().expanded());
        core.press(true, 33);
        QVERIFY2(!core.model().expanded(), "a fresh press outside closes it");
        core.press(false, 33);
        core.controller.open(std::nullopt);
        core.moveTo(kPanel);
        core.press(true, 33);
        QVERIFY2(core.model().expanded(), "a press inside does not");
        QVERIFY(core.model().pointerEntered());
    }

    void toggleTakesTheKeyboard()
    {
        Fakes::StartedCore core;
        core.controller.toggle();
        QVERIFY(core.model().expanded() && core.panel().key);
        core.controller.toggle();
        QVERIFY(!core.model().expanded() && !core.panel().key);
        core.controller.open(std::nullopt);
        QVERIFY(!core.panel().key);
        Q_EMIT core.model().keyboardWanted();
        QVERIFY(core.panel().key);
        Q_EMIT core.model().closeWanted();
        QVERIFY(!core.model().expanded() && !core.panel().key);
    }

    void togglePicksTheDisplay()
    {
        Fakes::StartedCore core({{u"notch.allDisplays"_s, true}, {u"notch.showWithoutNotch"_s, false}},
                                {externalDisplay(0), builtInDisplay(1920), externalDisplay(2)});
        QCOMPARE(core.controller.notches().size(), 1U);
        core.moveTo(kOutside); // on a display without a notch, which is the main one
        core.controller.toggle();
        QVERIFY(core.model().expanded());
        core.controller.collapseAll();
        core.settings.setShowWithoutNotch(true);
        core.controller.settingsChanged();
        QCOMPARE(core.controller.notches().size(), 3U);
        core.moveTo({3900, 500});
        core.controller.toggle();
        QVERIFY(core.controller.notches().at(2).model->expanded());
    }

    void openChoosesTheTool()
    {
        Fakes::StartedCore core;
        core.controller.open(NotchTool::timer);
        QCOMPARE(core.model().selected(), NotchTool::timer);
        core.controller.open(NotchTool::note);
        QCOMPARE(core.services.visibleTool(), std::optional(NotchTool::note));
        core.controller.collapseAll();
        core.settings.setEnabled(NotchTool::note, false);
        core.controller.open(NotchTool::note);
        QCOMPARE(core.model().selected(), NotchTool::home);
        core.controller.collapseAll();
        core.settings.setTools({});
        core.controller.open(std::nullopt);
        QCOMPARE(core.model().selected(), NotchTool::note);
    }

    void hubFollowsTheOpenNotches()
    {
        Fakes::StartedCore core({{u"notch.allDisplays"_s, true}}, {externalDisplay(0), externalDisplay(1)});
        core.moveTo(kOutside);
        core.controller.open(NotchTool::timer);
        core.moveTo({2000, 300});
        core.controller.toggle();
        core.controller.notches().at(1).model->setSelected(NotchTool::note);
        core.moveTo(kOutside);
        core.controller.toggle();
        QVERIFY(core.services.anyExpanded());
        QCOMPARE(core.services.visibleTool(), std::optional(NotchTool::note));
        core.services.surroundings()->collapse();
        QVERIFY(!core.services.anyExpanded() && !core.services.visibleTool());
    }

    void hitAreaFollowsTheState()
    {
        Fakes::StartedCore core;
        const NotchGeometry geometry = core.model().geometry();
        QCOMPARE(core.panel().hitArea, geometry.hitRect(false, false));
        core.controller.open(std::nullopt);
        QCOMPARE(core.panel().hitArea, geometry.hitRect(true, false));
        core.controller.collapseAll();
        QCOMPARE(core.panel().hitArea, geometry.hitRect(false, false));
        core.services.model<TimerModel>()->start(60);
        core.wait(33);
        QCOMPARE(core.panel().hitArea, geometry.hitRect(false, true));
    }

    void shortcutFollowsItsSetting()
    {
        Fakes::StartedCore core;
        QCOMPARE(core.hotKeys.codes, std::pair(45U, 6400U));
        const HotKeyIdentity first = core.hotKeys.registered.at(0);
        QCOMPARE(first.signature, 0x4b52554eU); // "KRUN"
        core.hotKeys.handler(first);
        QVERIFY2(!core.model().expanded(), "the action runs from the event loop");
        QCoreApplication::processEvents();
        QVERIFY(core.model().expanded());
        core.controller.settingsChanged();
        QVERIFY(core.hotKeys.registered.at(0).id > first.id);
        core.hotKeys.handler(first);
        QCoreApplication::processEvents();
        QVERIFY2(core.model().expanded(), "a late press of an old registration does nothing");
        core.settings.setShortcutEnabled(false);
        core.controller.settingsChanged();
        QVERIFY(core.hotKeys.registered.empty());
        core.hotKeys.taken = true;
        core.settings.setShortcutEnabled(true);
        core.controller.settingsChanged();
        QVERIFY(!core.controller.hasHotkey());
        core.controller.toggle();
        QVERIFY(!core.model().expanded());
    }

    void whatCameOfTheShortcutIsKnown()
    {
        using State = HotKeyBinding::State;
        Fakes::StartedCore core;
        const auto binding = [&] { return core.controller.hotKeyBinding(); };
        const QSignalSpy changed(&core.controller, &NotchController::hotKeyBindingChanged);
        QCOMPARE(binding(), HotKeyBinding{State::asked});
        core.hotKeys.first = {};
        core.controller.settingsChanged();
        QCOMPARE(binding(), HotKeyBinding{State::asked}); // The desktop has not answered yet.
        const HotKeyBinding chosen{State::chosen, QStringLiteral("F9")};
        core.hotKeys.bind(chosen);
        QCOMPARE(binding(), chosen);
        const auto late = core.hotKeys.registered.back();
        core.settings.setShortcutEnabled(false);
        core.controller.settingsChanged();
        core.hotKeys.bindingHandler(late, chosen);
        QCOMPARE(binding(), HotKeyBinding());
        core.hotKeys.taken = true;
        core.settings.setShortcutEnabled(true);
        core.controller.settingsChanged();
        QCOMPARE(binding(), HotKeyBinding{State::taken});
        core.controller.stop();
        QCOMPARE(binding(), HotKeyBinding());
        QCOMPARE(changed.count(), 4);
    }

    void startAndStopAreIdempotent()
    {
        Fakes::StartedCore core;
        core.controller.start();
        QCOMPARE(core.panels.alive.size(), 1U);
        // Two for the first polls, and the hub's, as its players have to be asked.
        QCOMPARE(core.clock.running(), 3U);
        core.controller.open(std::nullopt);
        core.controller.stop();
        core.controller.stop();
        QVERIFY(core.panels.alive.empty());
        QCOMPARE(core.clock.running(), 0U);
        QVERIFY(core.hotKeys.registered.empty() && !core.services.anyExpanded());
        core.controller.settingsChanged();
        QVERIFY(core.panels.alive.empty());
        core.controller.start();
        QVERIFY(!core.model().expanded());
    }

    /// No timer runs while nothing can come of the pointer, wherever it is.
    void restsUntilThePointerStirs_data()
    {
        const auto row = columns<bool, Steps>();
        constexpr bool down = true, open = true, pins = true;
        row("elsewhere", !pins, {{kOutside, !down, 100, !open}});
        row("dragging elsewhere", !pins, {{kOutside, down, 100, !open}});
        row("after a look", !pins, {{kNotch, !down, 500, open}, {kOutside, !down, 2000, !open}});
        row("pressed away", !pins,
            {{kNotch, down, 100, !open}, {kOutside, down, 100, !open}, {kOutside, !down, 100, !open}});
        row("pinned", pins, {{kNotch, !down, 500, open}, {kOutside, !down, 2000, open}});
        row("rested in the open notch", pins, {{kNotch, !down, 500, open}, {kPanel, !down, 500, open}});
    }

    void restsUntilThePointerStirs()
    {
        const auto [pins, steps] = fetched<bool, Steps>();
        Fakes::StartedCore core;
        core.settings.setEnabled(NotchTool::nowPlaying, false); // Its players have to be asked.
        for (const Step &step : steps) {
            core.press(step.down);
            core.moveTo(step.place, step.milliseconds);
            QCOMPARE(core.model().expanded(), step.open);
            core.model().setPinned(step.open && pins);
        }
        core.wait(900); // Nothing more moves.
        const auto hub = core.model().expanded() ? 1U : 0U;
        QCOMPARE(core.clock.running(), hub);
        core.model().setPinned(false);
        core.moveTo(kOutside, 2000);
        core.press(false, 100);
        QVERIFY(!core.model().expanded());
        QCOMPARE(core.clock.running(), 0U);
    }

    void noDisplayIsNoTrouble()
    {
        Fakes::StartedCore core({}, {});
        core.controller.toggle();
        core.controller.open(NotchTool::home);
        core.wait(1000);
        QVERIFY(core.controller.notches().empty() && !core.services.anyExpanded());
    }
};

REGISTER_TEST(NotchControllerTest);
#include "NotchControllerTest.moc"
