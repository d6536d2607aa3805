#include "EndToEnd/Wayland/WaylandStage.h"

#include <linux/input-event-codes.h>

/// What opens and closes the notch of a native client, and what of the pointer others keep.
class WaylandOpeningTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyAFreshPressOrARestOpens_data() { compositors(); }
    void onlyAFreshPressOrARestOpens()
    {
        QVERIFY(stage().run({{"hoverDelay", "0.6"}}));
        // A press while resting starts the delay anew.
        input().move(Place::notch);
        QTest::qWait(300);
        input().pressButton();
        QVERIFY(holdsFor([&] { return !session().isOpen(); }, 900));
        QElapsedTimer resting;
        resting.start();
        input().releaseButton();
        QVERIFY(stage().waitOpen());
        QVERIFY2(resting.elapsed() >= 600, qPrintable(QString::number(resting.elapsed())));
        QVERIFY(leave());

        // A press that is dragged in does not open it.
        input().pressButton();
        input().glide(Place::away, Place::notch);
        QVERIFY(holdsFor([&] { return !session().isOpen(); }, 900));
        input().move(Place::away);
        input().releaseButton();

        // The shortest of clicks does.
        QVERIFY(session().set(u"openMode"_s, u"click"_s));
        const qsizetype pressed = stage().other.count(u"press"_s);
        for (int round = 0; round < 3; ++round) {
            input().click(Place::notch);
            QVERIFY(leave());
        }
        QCOMPARE(stage().other.count(u"press"_s), pressed);
    }

    void hangsBelowOtherPanels_data() { compositors(); }
    void hangsBelowOtherPanels()
    {
        constexpr QPoint onThePanel(640, 15);
        constexpr QPoint belowIt(640, 50);
        QVERIFY(stage().run({{"hoverDelay", "0"}}));
        OtherProgram panel(session().environment(), u"wayland"_s, {u"panel"_s});
        QTRY_COMPARE(panel.count(u"shown"_s), 1);
        QVERIFY(waitUntil([&] {
            input().move(Place::away);
            input().click(onThePanel);
            return waitUntil([&] { return panel.count(u"press"_s) > 0; }, 500);
        }));
        QVERIFY(!session().isOpen());
        input().move(belowIt);
        QVERIFY(stage().waitOpen() && leave());

        QVERIFY(session().set(u"placement"_s, u"over"_s));
        QVERIFY(waitUntil([&] {
            input().move(Place::away);
            input().move(onThePanel);
            return waitUntil([&] { return session().isOpen(); }, 500);
        }));
        QVERIFY(leave());
    }

    void calledByACommandItStaysUntilVisited_data() { compositors(); }
    void calledByACommandItStaysUntilVisited()
    {
        QVERIFY(stage().run());
        QCOMPARE(session().command({u"toggle"_s}).status, 0);
        QVERIFY(stage().waitOpen());
        QVERIFY(holdsFor([&] { return session().isOpen(); }, 800));
        QVERIFY(!session().display().value("pointerEntered"_L1).toBool());
        input().move(Place::panel);
        QVERIFY(leave());
        QTRY_VERIFY(stage().other.hasFocus());
    }

    void anX11ProgramKeepsItsClicksAndTheKeyboard_data()
    {
        using enum Compositor::Kind;
        compositors(true);
        QTest::newRow("guest of sway") << WaylandStage::Desktop{Sway, true, true};
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{KWin, true, true};
    }
    void anX11ProgramKeepsItsClicksAndTheKeyboard()
    {
        QVERIFY(stage().run({{"hoverDelay", "0"}}));
        QCOMPARE(session().status().value("windowSystem"_L1).toString(),
                 desktop().guest ? u"x11"_s : u"wayland"_s);
        for (const QPoint place : {Place::beside, Place::below})
            QVERIFY(stage().clickReachesOther(place));
        input().move(Place::notch);
        QVERIFY(stage().waitOpen());
        input().glide(Place::notch, Place::panel);
        QVERIFY(stage().other.hasFocus());
        input().tap(KEY_H);
        QTRY_COMPARE(stage().other.count(u"key h"_s), 1);
        QVERIFY(stage().clickReachesOther(Place::beside));
        QVERIFY(stage().waitClosed());
        QVERIFY(stage().clickReachesOther(Place::panel));
        QCOMPARE(stage().other.count(u"no focus"_s), 0);
    }

private:
    bool leave()
    {
        if (!stage().waitVisited())
            return false;
        input().move(Place::away);
        return stage().waitClosed();
    }
};

REGISTER_TEST(WaylandOpeningTest);
#include "WaylandOpeningTest.moc"
