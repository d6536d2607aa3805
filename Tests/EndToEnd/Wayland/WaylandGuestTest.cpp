#include "EndToEnd/Wayland/WaylandStage.h"

#include <linux/input-event-codes.h>

/// What is different where the program is a guest.
class WaylandGuestTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
#ifdef KESTRUNE_WAYLAND
    // Not on what Debian 12 has, where it is not always reached.
    void itIsAboveFullScreenWindows_data() { guests({Sway, Mutter}); }
    void itIsAboveFullScreenWindows()
    {
        setStage({u"full"_s});
        QVERIFY(stage().run({{"hoverDelay", "0"}, {"hideOverFullScreen", "false"}}));
        QVERIFY(stage().clickReachesOther(Place::below));
        input().move(Place::notch);
        QVERIFY(stage().waitVisited());
        QTRY_VERIFY(stage().looksOpen());
        input().glide(Place::notch, Place::panel);
        const qsizetype pressed = stage().other.count(u"press"_s);
        input().click(Place::panel);
        QVERIFY(holdsFor([&] { return stage().other.count(u"press"_s) == pressed; }, 500));
        QVERIFY(session().isOpen());
        input().move(Place::away);
        QVERIFY(stage().waitClosed());
        QVERIFY(stage().clickReachesOther(Place::panel));
        QCOMPARE(stage().other.count(u"no focus"_s), 0);
    }
#endif

    void withoutTheKeyboardItLeavesTheOtherProgramIts_data() { guests({Sway}); }
    void withoutTheKeyboardItLeavesTheOtherProgramIts()
    {
        QVERIFY(stage().run());
        QCOMPARE(session().command({u"open"_s, u"note"_s}).status, 0);
        QVERIFY(stage().waitOpen());
        QTest::qWait(300);
        input().tap(KEY_H);
        QTRY_COMPARE(stage().other.count(u"key h"_s), 1);
        QCOMPARE(session().setting(u"note"_s), QString());
        QVERIFY(session().isOpen());
        input().glide(Place::away, Place::panel);
        QVERIFY(stage().waitVisited());
        input().move(Place::away);
        QVERIFY(stage().waitClosed());
        QCOMPARE(stage().other.count(u"no focus"_s), 0);
    }

private:
    using enum Compositor::Kind;

    /// On those and, where it runs, KWin; beside a window of Wayland, and beside one of X11.
    static void guests(QList<Compositor::Kind> kinds)
    {
#ifdef KESTRUNE_WAYLAND
        kinds.append(KWin);
#endif
        QTest::addColumn<WaylandStage::Desktop>("desktop");
        for (const auto kind : kinds) {
            for (const bool x11 : {false, true})
                QTest::addRow("%s, %s", nameOf(kind), x11 ? "X11" : "Wayland")
                    << WaylandStage::Desktop{kind, true, x11};
        }
    }

    static const char *nameOf(Compositor::Kind kind)
    {
        return kind == Sway ? "sway" : kind == KWin ? "KWin" : "Mutter";
    }
};

REGISTER_TEST(WaylandGuestTest);
#include "WaylandGuestTest.moc"
