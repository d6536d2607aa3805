#include "EndToEnd/Stage.h"

/// The notch as a window among others: clicks, focus, stacking and desktops.
class WindowTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void clicksOutsideReachTheWindowBeneath_data() { noAndYes("no compositor", "compositor"); }

    void clicksOutsideReachTheWindowBeneath()
    {
        const auto [compositor] = fetched<bool>();
        setStage({.compositor = compositor});
        // Hover must not open while the closed notch is being clicked.
        QVERIFY(stage().run({{"hoverDelay", "60"}}));
        const QList<QPoint> aroundClosed = {{537, 5}, {537, 30}, {743, 5}, {640, 40}, Place::panel};
        QCOMPARE(reachingBeneath(aroundClosed), aroundClosed);
        const QList<QPoint> insideClosed = {{640, 0}, Place::notch, {541, 10}, {738, 28}, {640, 36}};
        QCOMPARE(kept(insideClosed), insideClosed);

        QVERIFY(stage().openByHotKey());
        input().move(Place::panel);
        QTRY_VERIFY(session().display().value("pointerEntered"_L1).toBool());
        QCOMPARE(session().command({u"open"_s, u"note"_s}).status, 0);
        const QList<QPoint> insideOpen = {{640, 0}, Place::panel, {255, 100}, {1024, 200}, {640, 335}};
        QCOMPARE(kept(insideOpen), insideOpen);
        // Right below and beside the panel, where its transparent window still is. Each click comes right
        // after the pointer left, so the notch is still open.
        for (const QPoint place : {QPoint(640, 340), QPoint(640, 380), QPoint(249, 100), QPoint(210, 10)}) {
            input().move(Place::panel);
            QTest::qWait(100);
            QVERIFY(stage().looksOpen());
            QCOMPARE(reachingBeneath({place}), QList<QPoint>{place});
        }

        QVERIFY(stage().leave() && stage().clickReachesBeneath(Place::panel));
    }

    void clicksFollowAPointerThatJumps()
    {
        QVERIFY(stage().run({{"hoverDelay", "60"}}));
        // There is no time between the jump and the press in which the program could look at the pointer, and
        // the click before it has made the window manager raise the window beneath.
        for (int round = 0; round < 10; ++round) {
            QVERIFY(stage().clickIsKept(Place::notch) && stage().clickReachesBeneath({640, 42}));
        }
    }

    void openingByHoverLeavesTheActiveWindowActive()
    {
        QVERIFY(stage().run() && stage().openByHover() && stage().beneath.hasFocus());
        stage().beneath.forget();
        input().type("abc");
        QTRY_COMPARE(stage().beneath.keys(), 3);
        QVERIFY(stage().leave() && stage().beneath.hasFocus());
    }

    void typingIntoTheNote_data() { windowManagers(); }
    void typingIntoTheNote()
    {
        setWindowManager();
        QVERIFY(stage().run() && stage().choose(u"note"_s) && stage().openByHover());
        QVERIFY(stage().beneath.hasFocus());
        stage().beneath.forget();

        input().click(Place::panel);
        QTRY_VERIFY(stage().x.focus() != stage().beneath.id());
        input().type("Milk & 12 eggs");
        QTRY_COMPARE(session().setting(u"note"_s), u"Milk & 12 eggs"_s);
        QCOMPARE(stage().beneath.keys(), 0);

        QVERIFY(stage().leave());
        QTRY_VERIFY(stage().beneath.hasFocus());
        input().type("x");
        QTRY_COMPARE(stage().beneath.keys(), 1);
        QCOMPARE(session().setting(u"note"_s), u"Milk & 12 eggs"_s);
    }

    void staysAboveOtherWindows_data()
    {
        columns<QString, TestWindow::Kind, QRect>();
        for (const auto *windowManager : {"openbox", "xfwm4"}) {
            const QString name = QString::fromLatin1(windowManager);
            QTest::addRow("%s, full screen", windowManager)
                << name << TestWindow::Kind::FullScreen << QRect(0, 0, 1280, 800);
            QTest::addRow("%s, panel", windowManager)
                << name << TestWindow::Kind::Dock << QRect(0, 0, 1280, 30);
        }
    }

    void staysAboveOtherWindows()
    {
        auto [windowManager, kind, geometry] = fetched<QString, TestWindow::Kind, QRect>();
        setStage({.windowManager = windowManager});
        QVERIFY(stage().run({{"hideOverFullScreen", "false"}, {"placement", "over"}}));
        TestWindow other(stage().display.name(), kind, geometry, 0xff8040c0);
        const auto shown = [&](QPoint place) { return stage().x.pixel(place) != other.colour(); };
        QTRY_VERIFY(shown(Place::notch));
        QVERIFY(shown({640, 0}) && !shown({530, 0}) && stage().clickIsKept(Place::notch));
        QCOMPARE(other.clicks(), 0);

        input().move(Place::away);
        input().move(Place::notch);
        QTRY_VERIFY(shown(Place::panelEdge) && session().isOpen());
        QVERIFY(shown({640, 0}));

        // The same for a notch that comes while the other window is there already.
        session().program().killNow();
        QTRY_VERIFY(!shown(Place::notch));
        input().move(Place::away);
        QVERIFY(session().start());
        QTRY_VERIFY(shown(Place::notch));
        QVERIFY(shown({640, 0}));
    }

    void hangsBelowPanels_data() { windowManagers(); }
    void hangsBelowPanels()
    {
        setWindowManager();
        QVERIFY(stage().run({{"hoverDelay", "0"}}));
        constexpr QPoint down(0, 30);
        constexpr QPoint onThePanel(640, 15);
        std::optional<TestWindow> panel(std::in_place, stage().display.name(), TestWindow::Kind::Dock,
                                        QRect(0, 0, 1280, down.y()), 0xff8040c0);
        const auto shown = [&](QPoint place) {
            return stage().covered(place) && stage().x.pixel(place) != panel->colour();
        };
        QTRY_VERIFY(!shown(onThePanel) && shown(Place::notch + down));
        input().click(onThePanel);
        QTRY_COMPARE(panel->clicks(), 1);
        QVERIFY(!session().isOpen() && stage().clickIsKept(Place::notch + down));

        input().move(Place::away);
        QTRY_VERIFY(!session().isOpen());
        input().move(Place::notch + down);
        QTRY_VERIFY(shown(Place::panelEdge + down) && !shown(onThePanel));
        input().move(Place::away);
        QTRY_VERIFY(!session().isOpen() && !shown(Place::panel));

        QVERIFY(session().set(u"placement"_s, u"over"_s));
        QTRY_VERIFY(shown(onThePanel) && !stage().covered(Place::notch + down));
        QVERIFY(session().set(u"placement"_s, u"below"_s));
        QTRY_VERIFY(!shown(onThePanel) && shown(Place::notch + down));
        panel.reset();
        QTRY_VERIFY(stage().covered(onThePanel) && !stage().covered(Place::notch + down));
    }

    void hidesOverFullScreenWindows_data() { windowManagers(); }
    void hidesOverFullScreenWindows()
    {
        setWindowManager();
        QVERIFY(stage().run());
        std::optional<TestWindow> film(std::in_place, stage().display.name(), TestWindow::Kind::FullScreen,
                                       QRect(0, 0, 1280, 800), 0xff8040c0);
        const auto shown = [&](QPoint place) { return stage().x.pixel(place) != film->colour(); };
        QTRY_VERIFY(!shown(Place::notch));
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return !shown(Place::panelEdge); }, 800));
        input().click(Place::notch);
        QTRY_COMPARE(film->clicks(), 1);
        input().move(Place::away);
        QTest::qWait(300); // The program has looked where the pointer is, whatever it does meanwhile.

        input().hotKey();
        QTRY_VERIFY(shown(Place::panelEdge) && session().isOpen());
        input().tap(XK_Escape);
        QTRY_VERIFY(!shown(Place::panelEdge) && !shown(Place::notch));
        QTRY_VERIFY(film->hasFocus());

        QVERIFY(session().set(u"hideOverFullScreen"_s, u"false"_s));
        QTRY_VERIFY(shown(Place::notch));
        QVERIFY(session().set(u"hideOverFullScreen"_s, u"true"_s));
        QTRY_VERIFY(!shown(Place::notch));
        film.reset();
        QTRY_COMPARE(stage().x.pixel(Place::notch),
                     QColor(Qt::black)); // Not what a window leaves as it goes.
        QVERIFY(stage().openByHover());
    }

    void isInNoListOfWindows_data() { windowManagers(); }
    void isInNoListOfWindows()
    {
        setWindowManager();
        const QList<quint32> before = stage().x.clientWindows();
        QVERIFY(before.contains(stage().beneath.id()) && stage().run());
        QCOMPARE(stage().x.clientWindows(), before);
        QVERIFY(stage().openByHotKey());
        QCOMPARE(stage().x.clientWindows(), before);
    }

    void showsOnEveryDesktop_data() { texts({"openbox", "xfwm4"}); } // KWin begins with one.
    void showsOnEveryDesktop()
    {
        setWindowManager();
        QVERIFY(stage().run());
        stage().x.ask(stage().x.root(), "_NET_CURRENT_DESKTOP", {1, XCB_CURRENT_TIME});
        QTRY_COMPARE(stage().x.property(stage().x.root(), "_NET_CURRENT_DESKTOP"), QList<quint32>{1});
        QTRY_VERIFY(stage().covered(Place::away));
        const QColor desktop = stage().x.pixel(Place::away);
        QCOMPARE_NE(stage().x.pixel(Place::notch), desktop);
        input().move(Place::notch);
        QTRY_VERIFY(stage().x.pixel(Place::panelEdge) != desktop && session().isOpen());
    }

private:
    /// Those of `places` where a click goes to the window beneath, or does not.
    QList<QPoint> reachingBeneath(QList<QPoint> places)
    {
        return places.removeIf([this](QPoint place) { return !stage().clickReachesBeneath(place); }), places;
    }
    QList<QPoint> kept(QList<QPoint> places)
    {
        return places.removeIf([this](QPoint place) { return !stage().clickIsKept(place); }), places;
    }

    static void windowManagers()
    {
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
        texts({"openbox", "xfwm4"});
#else
        texts({"openbox", "xfwm4", "kwin_x11"}); // Of the release before, it is a part of a whole desktop.
#endif
    }
    void setWindowManager() { setStage({.windowManager = std::get<0>(fetched<QString>())}); }
};

REGISTER_TEST(WindowTest);
#include "WindowTest.moc"
