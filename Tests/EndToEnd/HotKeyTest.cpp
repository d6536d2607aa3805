#include "EndToEnd/Stage.h"

/// The combination that works from every program.
class HotKeyTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void worksWhateverIsLocked_data()
    {
        const auto row = columns<QList<uint>, uint>();
        row("nothing", QList<uint>{}, 0U);
        row("Num Lock", QList<uint>{XK_Num_Lock}, uint{XCB_MOD_MASK_2});
        row("Caps Lock", QList<uint>{XK_Caps_Lock}, uint{XCB_MOD_MASK_LOCK});
        row("both", QList<uint>{XK_Num_Lock, XK_Caps_Lock}, uint{XCB_MOD_MASK_2 | XCB_MOD_MASK_LOCK});
    }

    void worksWhateverIsLocked()
    {
        auto [locks, state] = fetched<QList<uint>, uint>();
        QVERIFY(stage().run());
        for (const uint lock : locks)
            input().tap(lock);
        QCOMPARE(input().state() & (XCB_MOD_MASK_2 | XCB_MOD_MASK_LOCK), state);
        QVERIFY(stage().beneath.hasFocus());
        stage().beneath.forget();

        QVERIFY(stage().openByHotKey());
        input().hotKey();
        QVERIFY(stage().waitClosed());
        // The modifiers are everybody's; the N must have gone to nobody else.
        QVERIFY(stage().beneath.keys() <= 3);
    }

    void followsTheLayout()
    {
        QVERIFY(stage().run());
        QCOMPARE(QProcess::execute(u"setxkbmap"_s, {u"-display"_s, stage().display.name(), u"us"_s,
                                                    u"-variant"_s, u"dvorak"_s}),
                 0);
        const auto former = input().code(XK_n);
        QTRY_VERIFY((input().readLayout(), input().code(XK_n) != former));
        QVERIFY(waitUntil([&] {
            input().hotKey();
            return waitUntil([&] { return stage().looksOpen(); }, 1000);
        }));
    }

    void heldDownItTogglesOnce()
    {
        QVERIFY(stage().run());
        input().hotKey(1500); // longer than the keyboard waits before it repeats
        QVERIFY(stage().looksOpen());
        QVERIFY(holdsFor([&] { return stage().looksOpen(); }, 500));
        input().hotKey(1500);
        QVERIFY(stage().looksClosed());
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 500));
    }

    void keysThatAProgramForgesDoNothing()
    {
        QVERIFY(stage().run());
        const X11 &x = stage().x;
        const auto panels = x.topWindows({880, 390});
        QCOMPARE(panels.size(), 1);
        xcb_key_press_event_t event{};
        event.response_type = XCB_KEY_PRESS;
        event.detail = input().code(XK_n);
        event.root = event.event = x.root();
        event.state = modifiers;
        event.time = 1;
        xcb_send_event(x.connection(), 0, panels[0], XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&event));
        x.sync();
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 500));
        QVERIFY(stage().openByHotKey());
    }

    void aTakenCombinationLeavesTheRestWorking()
    {
        const X11 &x = stage().x;
        for (const int locks :
             {0, int{XCB_MOD_MASK_2}, int{XCB_MOD_MASK_LOCK}, XCB_MOD_MASK_2 | XCB_MOD_MASK_LOCK})
            xcb_grab_key(x.connection(), 1, x.root(), static_cast<uint16_t>(modifiers | locks),
                         input().code(XK_n), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        x.sync();
        QVERIFY(stage().run());
        input().hotKey();
        QVERIFY(holdsFor([&] { return stage().looksClosed(); }, 500));

        QVERIFY(stage().openByHover() && stage().leave());
        QCOMPARE(session().command({u"toggle"_s}).status, 0);
        QTRY_VERIFY(stage().looksOpen());
        QVERIFY(stage().close());

        const auto choose = [&](const QString &keys) {
            return session().command({u"settings"_s, u"set"_s, u"shortcut"_s, keys});
        };
        QCOMPARE(choose(u"Ctrl+F8"_s).status, 0);
        input().pressKey(XK_Control_L);
        input().tap(XK_F8);
        input().releaseKey(XK_Control_L);
        QTRY_VERIFY(stage().looksOpen());
        const Session::Result taken = choose(u"Ctrl+Alt+Super+N"_s);
        QCOMPARE(taken.status, 2);
        QVERIFY(taken.errors.contains(u"another program has these keys"_s));
    }

private:
    static constexpr int modifiers = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
};

REGISTER_TEST(HotKeyTest);
#include "HotKeyTest.moc"
