#include "EndToEnd/Stage.h"

// Lower limits on time are what is promised; upper ones leave room for a busy machine.
constexpr int leaveDelay = 250;

/// How the pointer and the keyboard open and close the notch.
class OpeningTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void hoverOpensAfterTheDelay_data() { texts({"0", "0.12", "0.8"}); }

    void hoverOpensAfterTheDelay()
    {
        const auto [delay] = fetched<QString>();
        QVERIFY(stage().run({{"hoverDelay", QTest::currentDataTag()}}));
        input().move(Place::notch);
        QCOMPARE_GE(timeUntil([&] { return !stage().looksClosed(); }), qint64(delay.toDouble() * 1000));
        QTRY_VERIFY(stage().looksOpen());
        QVERIFY(session().isOpen() && session().display().value("pointerEntered"_L1).toBool());
    }

    void clickModeOpensOnThePress()
    {
        QVERIFY(stage().run({{"openMode", "click"}}));
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 500));
        input().pressButton();
        QTRY_VERIFY(stage().looksOpen());
        input().releaseButton();
        QVERIFY(holdsFor([&] { return stage().looksOpen(); }, 500));
    }

    void clickModeSeesTheShortestClick()
    {
        QVERIFY(stage().run({{"openMode", "click"}}));
        // The button is down and up again between two looks at the pointer.
        for (int round = 0; round < 5; ++round) {
            input().click(Place::notch);
            QTRY_VERIFY(stage().looksOpen());
            QVERIFY(stage().leave());
        }
        QCOMPARE(stage().beneath.clicks(), 0);
    }

    void aPressDraggedInDoesNotOpen_data() { texts({"click", "hover"}); }

    void aPressDraggedInDoesNotOpen()
    {
        QVERIFY(stage().run({{"openMode", QTest::currentDataTag()}}));
        input().move(Place::panel);
        input().pressButton();
        QTest::qWait(100);
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 600));
        input().move(Place::away);
        input().releaseButton();
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 300));
    }

    void leavingClosesAfterADelay()
    {
        QVERIFY(stage().run() && stage().openByHover());
        input().move(Place::away);
        QTest::qWait(100);
        input().move(Place::panel);
        QVERIFY(holdsFor([&] { return stage().looksOpen(); }, 700));

        input().move(Place::away);
        QCOMPARE_GE(timeUntil([&] { return !stage().looksOpen(); }), leaveDelay);
        QVERIFY(stage().waitClosed());
    }

    void openedByHotKeyItStaysUntilVisited()
    {
        QVERIFY(stage().run() && stage().openByHotKey());
        QVERIFY(holdsFor([&] { return stage().looksOpen(); }, 800));
        QVERIFY(!session().display().value("pointerEntered"_L1).toBool());

        input().move(Place::panel);
        QTRY_VERIFY(session().display().value("pointerEntered"_L1).toBool());
        input().move(Place::away);
        QCOMPARE_GE(timeUntil([&] { return !stage().looksOpen(); }), leaveDelay);
    }

    void openedByHotKeyAClickOutsideClosesIt()
    {
        QVERIFY(stage().run());
        // A press that is older than the opening is no fresh click.
        input().pressButton();
        QTest::qWait(100);
        QVERIFY(stage().openByHotKey());
        QVERIFY(holdsFor([&] { return stage().looksOpen(); }, 500));
        input().releaseButton();
        QTest::qWait(100);
        QVERIFY(stage().clickReachesBeneath(Place::away) && stage().waitClosed());
    }

    void pinnedItStays()
    {
        QVERIFY(stage().run() && stage().openByHover());
        input().click(Place::pin);
        QTRY_VERIFY(session().display().value("pinned"_L1).toBool());
        input().move(Place::away);
        QVERIFY(holdsFor([&] { return stage().looksOpen(); }, 800));

        input().click(Place::pin);
        QTRY_VERIFY(!session().display().value("pinned"_L1).toBool());
        QVERIFY(stage().leave());
    }

    void escapeCloses()
    {
        QVERIFY(stage().run() && stage().openByHotKey());
        QTRY_VERIFY(!stage().beneath.hasFocus());
        stage().beneath.forget(); // the modifiers of the hot key
        input().tap(XK_Escape);
        QVERIFY(stage().waitClosed());
        QTRY_VERIFY(stage().beneath.hasFocus());
        QCOMPARE(stage().beneath.keys(), 0);
    }

    void keysReachEveryTool()
    {
        QVERIFY(stage().show(u"mirror"_s)); // Nothing in its pane stops Tab.
        const QStringList tools = session().tools();
        const auto held = [&](xcb_keysym_t modifier, xcb_keysym_t key) {
            input().pressKey(modifier);
            input().tap(key);
            input().releaseKey(modifier);
        };
        QStringList seen;
        for (qsizetype i = 0; i < tools.size(); ++i) {
            held(XK_Control_L, XK_Tab);
            const QString before = seen.value(seen.size() - 1, u"mirror"_s);
            QTRY_VERIFY(session().selected() != before);
            seen.append(session().selected());
        }
        std::ranges::sort(seen, {}, [&](const QString &tool) { return tools.indexOf(tool); });
        QCOMPARE(seen, tools);
        held(XK_Control_L, XK_1);
        QTRY_COMPARE(session().selected(), tools.first());
        held(XK_Control_L, XK_8);
        QTRY_COMPARE(session().selected(), tools.at(7));

        QVERIFY(stage().close() && stage().choose(u"mirror"_s) && stage().openByHotKey());
        input().tap(XK_Tab);
        input().tap(XK_Right);
        input().tap(XK_space);
        QTRY_COMPARE(session().selected(), u"note"_s);
        input().type("kept"); // The note has the keyboard.
        QTRY_COMPARE(session().setting(u"note"_s), u"kept"_s);
        input().tap(XK_Escape);
        QVERIFY(stage().waitClosed());
    }

    void noKeyIsLostAtTheSecondOpening()
    {
        QVERIFY(stage().show(u"note"_s));
        input().tap(XK_Tab);
        input().tap(XK_Escape);
        QVERIFY(stage().waitClosed());
        stage().input.hotKey();
        QTRY_VERIFY(session().isOpen());
        stage().beneath.forget();
        input().type("all of it");
        QTRY_COMPARE(session().setting(u"note"_s), u"all of it"_s);
        QCOMPARE(stage().beneath.keys(), 0);
    }

    void whoTypesIsNotInterrupted()
    {
        QVERIFY(stage().show(u"note"_s));
        input().move(Place::panel);
        QTRY_VERIFY(session().display().value("pointerEntered"_L1).toBool());
        stage().beneath.forget();
        input().type("a");
        input().move(Place::away);
        for (int i = 0; i < 6; ++i) {
            QTest::qWait(300);
            input().type("b");
        }
        QVERIFY(session().isOpen());
        QVERIFY(stage().waitClosed());
        QCOMPARE(session().setting(u"note"_s), u"abbbbbb"_s);
        QCOMPARE(stage().beneath.keys(), 0);
    }

    void theToolRowSwitchesBetweenTheBuiltTools()
    {
        QVERIFY(stage().run() && stage().openByHover());
        QStringList seen;
        for (int x = Place::toolRow.left(); x < Place::toolRow.right(); x += 16) {
            input().click({x, Place::toolRow.y()});
            const QString selected = session().selected();
            if (!seen.contains(selected))
                seen.append(selected);
        }
        QCOMPARE(seen, session().tools());
    }
};

REGISTER_TEST(OpeningTest);
#include "OpeningTest.moc"
