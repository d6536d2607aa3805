#include "EndToEnd/Wayland/WaylandStage.h"

#include <linux/input-event-codes.h>

// Lower limits on time are what is promised; upper ones leave room for a busy machine.
constexpr int leaveDelay = 250;

/// The real program as a native client of each compositor.
class WaylandTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
    void hoverOpensAndLeavingCloses_data() { desktops(); }
    void hoverOpensAndLeavingCloses()
    {
        QVERIFY(stage().run({{"hoverDelay", "0.5"}}));
        QCOMPARE(session().status().value("windowSystem"_L1).toString(),
                 desktop().guest ? u"x11"_s : u"wayland"_s);
        input().move(Place::notch);
        const qint64 opened = timeUntil([&] { return session().isOpen(); });
        QVERIFY2(opened >= 500, qPrintable(QString::number(opened)));
        input().glide(Place::notch, Place::panel);
        QVERIFY(holdsFor([&] { return session().isOpen(); }, 700));
        QVERIFY(stage().other.hasFocus());

        input().push(Place::away - Place::panel);
        const qint64 closed = timeUntil([&] { return !session().isOpen(); });
        QVERIFY2(closed >= leaveDelay, qPrintable(QString::number(closed)));
        QCOMPARE(stage().other.count(u"no focus"_s), 0);
    }

    void clicksOpenAndPin_data() { desktops(); }
    void clicksOpenAndPin()
    {
        QVERIFY(stage().run({{"openMode", "click"}}));
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return !session().isOpen(); }, 500));
        input().click(Place::notch);
        QVERIFY(stage().waitOpen());
        input().glide(Place::notch, Place::pin);
        input().click(Place::pin);
        QTRY_VERIFY(session().display().value("pinned"_L1).toBool());
        input().move(Place::away);
        QVERIFY(holdsFor([&] { return session().isOpen(); }, 800));
        input().glide(Place::panel, Place::pin);
        input().click(Place::pin);
        QTRY_VERIFY(!session().display().value("pinned"_L1).toBool());
        input().move(Place::away);
        QVERIFY(stage().waitClosed());

        // A press that began elsewhere does not open it.
        input().move(Place::away);
        input().pressButton();
        input().move(Place::notch);
        QVERIFY(holdsFor([&] { return !session().isOpen(); }, 500));
        input().releaseButton();
    }

    void clicksBesideReachTheOtherProgram_data()
    {
        desktops();
        QTest::newRow("guest of sway, twice as large")
            << WaylandStage::Desktop{.kind = Compositor::Kind::Sway, .guest = true, .scale = 2};
    }
    void clicksBesideReachTheOtherProgram()
    {
        QVERIFY(stage().run({{"hoverDelay", "0"}}));
        for (const QPoint place : {Place::beside, Place::below})
            QVERIFY2(stage().clickReachesOther(place), qPrintable(QString::number(place.y())));
        input().move(Place::notch);
        QVERIFY(stage().waitOpen());
        input().glide(Place::notch, Place::panel);
        QVERIFY(stage().clickReachesOther(Place::beside));
        QVERIFY(stage().waitClosed());
        QVERIFY(stage().clickReachesOther(Place::panel));
        const qsizetype pressed = stage().other.count(u"press"_s);
        input().click(Place::notch);
        QVERIFY(holdsFor([&] { return stage().other.count(u"press"_s) == pressed; }, 500));
    }

    void theKeyboardIsTakenAndGivenBack_data()
    {
        compositors();
        QTest::newRow("guest of Mutter, X11") << WaylandStage::Desktop{Compositor::Kind::Mutter, true, true};
        QTest::newRow("guest of Mutter, Wayland") << WaylandStage::Desktop{Compositor::Kind::Mutter, true};
    }
    void theKeyboardIsTakenAndGivenBack()
    {
        QVERIFY(stage().run());
        for (int round = 1; round <= 2; ++round) {
            QCOMPARE(session().command({u"open"_s, u"note"_s}).status, 0);
            QTRY_VERIFY(!stage().other.hasFocus());
            QTest::qWait(300);
            input().tap(KEY_A);
            QTRY_COMPARE(session().setting(u"note"_s), QString(round, u'a'));
            input().tap(KEY_ESC);
            QVERIFY(stage().waitClosed());
            QTRY_VERIFY(stage().other.hasFocus());
            input().tap(KEY_H);
            QTRY_COMPARE(stage().other.count(u"key h"_s), round);
        }
        QCOMPARE(stage().other.count(u"key a"_s), 0);
    }

#ifdef KESTRUNE_WAYLAND
    void aFullScreenWindowCoversIt_data() { compositors(); }
    void aFullScreenWindowCoversIt()
    {
        setStage({u"full"_s});
        QVERIFY(stage().run({{ "hoverDelay", "0" }}));
        QVERIFY(stage().clickReachesOther(Place::notch));
        input().move(Place::away);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(session().command({u"open"_s, u"note"_s}).status, 0);
            QVERIFY(stage().waitOpen());
            QTRY_VERIFY(!stage().other.hasFocus());
            QTRY_VERIFY(stage().looksOpen());
            QTest::qWait(300);
            input().tap(KEY_ESC);
            QVERIFY(stage().waitClosed());
            QTRY_VERIFY(stage().other.hasFocus());
        }
        QVERIFY(stage().clickReachesOther(Place::notch));
    }
#endif

    void theHotKeyCallsItAboveAFullScreenWindow_data()
    {
        compositors();
        using enum Compositor::Kind;
        QTest::newRow("guest of sway") << WaylandStage::Desktop{Sway, true, true};
#ifdef KESTRUNE_WAYLAND
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{KWin, true, true};
#endif
    }
    void theHotKeyCallsItAboveAFullScreenWindow()
    {
        if (!stage().compositor.mayCallProgram())
            QSKIP("sway refuses to be root, and of root's programs it calls none");
        setStage({u"full"_s});
        QVERIFY(stage().run());
        QTRY_VERIFY(stage().hasHotKey());
        const bool takesKeyboard = !desktop().guest;
        for (int round = 0; round < 2; ++round) {
            input().hotKey();
            QVERIFY(stage().waitOpen());
            QTRY_VERIFY(stage().looksOpen());
            QTRY_COMPARE(stage().other.hasFocus(), !takesKeyboard);
            input().hotKey();
            QVERIFY(stage().waitClosed());
            QTRY_VERIFY(stage().other.hasFocus());
        }
        QCOMPARE(stage().other.count(u"key n"_s), 0);
    }

    void filesAreDraggedInAndOut_data()
    {
        compositors();
#ifdef KESTRUNE_WAYLAND
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{Compositor::Kind::KWin, true, true};
#else
        QTest::newRow("guest of Mutter") << WaylandStage::Desktop{Compositor::Kind::Mutter, true, true};
#endif
    }
    void filesAreDraggedInAndOut()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath(u"a 100% file.txt"_s);
        QVERIFY(writeFile(file, "text"));
        setStage({u"maximized"_s, file});
        QVERIFY(stage().run());
        QVERIFY(stage().dragOntoShelf());
        QTRY_COMPARE(session().setting(u"shelfPaths"_s), u"[\"%1\"]"_s.arg(file));

        input().glide(Place::panel, Place::onlyTile);
        QVERIFY(stage().waitOpen());
        input().pressButton();
        input().glide(Place::onlyTile, Place::away);
        QVERIFY(session().isOpen()); // As long as the button is held.
        input().releaseButton();
        QTRY_COMPARE(stage().other.count(u"dropped "_s + file), 1);
        QVERIFY(stage().waitClosed());
    }

    void copiesOfOtherProgramsAreKept_data()
    {
        compositors();
        QTest::newRow("guest of sway") << WaylandStage::Desktop{Compositor::Kind::Sway, true};
#ifdef KESTRUNE_WAYLAND
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{Compositor::Kind::KWin, true};
#endif
    }
    void copiesOfOtherProgramsAreKept()
    {
        QVERIFY(stage().run());
        QStringList copied;
        for (const QString &text : {u"eins"_s, u"二 zwei"_s}) {
            copy(text);
            copied.prepend(text);
            QTRY_COMPARE(session().copiedTexts(), copied);
        }
        // The older one again, by a click, with the notch closed when another program asks for it.
        QCOMPARE(session().command({u"open"_s, u"clipboard"_s}).status, 0);
        QVERIFY(stage().waitOpen());
        input().glide(Place::panel, Place::secondCopy);
        input().click(Place::secondCopy);
        QTRY_COMPARE(pasted(), u"eins"_s);
        input().move(Place::away);
        QVERIFY(stage().waitClosed());
        QCOMPARE(pasted(), u"eins"_s);
    }

    void displaysComeAndGo_data()
    {
        compositors();
        using enum Compositor::Kind;
        QTest::newRow("guest of Mutter") << WaylandStage::Desktop{Mutter, true};
#ifdef KESTRUNE_WAYLAND
        QTest::newRow("guest of sway") << WaylandStage::Desktop{Sway, true};
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{KWin, true};
#endif
    }
    void displaysComeAndGo()
    {
        QVERIFY(stage().run({{"allDisplays", "true"}, {"hoverDelay", "0"}}));
        QVERIFY(stage().compositor.plugSecond(true, input()));
        QTRY_COMPARE(session().displays().size(), 2);
        // How guests are scaled is each compositor's own affair.
        const int width = desktop().guest ? 1280 : 1024;
        if (!desktop().guest)
            stage().compositor.setScale(1, 1.25);
        QTRY_COMPARE(session().display(1).value("frame"_L1).toObject().value("width"_L1).toInt(), width);
        input().setExtent({1280 + width, 800});
        input().move({1280 + width / 2, 10});
        QVERIFY(stage().waitOpen(1) && !session().isOpen(0));
        // A guest of Mutter at times loses the pointer on the second display as the notch opens under it.
        if (desktop().kind != Compositor::Kind::Mutter) {
            QVERIFY(stage().waitVisited(1));
            input().move(Place::away);
            QVERIFY(stage().waitClosed(1));
        }
        QVERIFY(stage().compositor.plugSecond(false, input()));
        input().setExtent({1280, 800});
        QTRY_COMPARE(session().displays().size(), 1);

        // KWin without a screen loses displays that come and go at once.
        if (desktop().kind == Compositor::Kind::KWin || desktop().guest)
            return;

        qint64 memory = 0;
        const int rounds =
            desktop().kind == Compositor::Kind::Sway ? 100 : 30; // The other takes long for each.
        for (int round = 1; round <= rounds; ++round) {
            QVERIFY(stage().compositor.plugSecond(true, input()));
            QTRY_VERIFY2(session().displays().size() == 2, qPrintable(QString::number(round)));
            QVERIFY(stage().compositor.plugSecond(false, input()));
            QTRY_VERIFY2(session().displays().size() == 1, qPrintable(QString::number(round)));
            if (round == 10)
                memory = session().ownMemory();
        }
        // One lost picture of a notch is more than a megabyte; twenty of them would not go unseen.
        const qint64 growth = session().ownMemory() - memory;
        QVERIFY2(memory > 0 && growth < 4096, qPrintable(u"%1 kB more"_s.arg(growth)));
        input().move(Place::notch);
        QVERIFY(stage().waitOpen());
    }

private:
    void copy(const QString &text)
    {
        ChildProcess client(session().environment());
        client.launch(u"wl-copy"_s, {text}); // It stays in the background.
        client.waitForFinished();
    }
    QString pasted()
    {
        ChildProcess client(session().environment());
        client.setProcessChannelMode(QProcess::SeparateChannels);
        client.launch(u"wl-paste"_s, {u"--no-newline"_s});
        client.waitForFinished();
        return QString::fromUtf8(client.readAllStandardOutput());
    }
};

REGISTER_TEST(WaylandTest);
#include "WaylandTest.moc"
