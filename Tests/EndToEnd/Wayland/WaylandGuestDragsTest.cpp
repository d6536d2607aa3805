#include "EndToEnd/Wayland/WaylandStage.h"

/// Files dragged between a guest and windows of Wayland, where the compositor hands them on.
class WaylandGuestDragsTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
    void aGuestGetsFilesOfWaylandWindows_data()
    {
        QTest::addColumn<WaylandStage::Desktop>("desktop");
        QTest::newRow("guest of Mutter") << WaylandStage::Desktop{Compositor::Kind::Mutter, true};
    }
    void aGuestGetsFilesOfWaylandWindows()
    {
        const QString file = u"/etc/passwd"_s;
        setStage({u"maximized"_s, file});
        QVERIFY(stage().run({{"openMode", "click"}}));
        QVERIFY(stage().dragOntoShelf());
        QTRY_COMPARE(session().setting(u"shelfPaths"_s), u"[\"/etc/passwd\"]"_s);
    }

    void aGuestGivesFilesToWaylandWindows_data()
    {
        QTest::addColumn<WaylandStage::Desktop>("desktop");
        QTest::newRow("guest of KWin") << WaylandStage::Desktop{Compositor::Kind::KWin, true};
    }
    void aGuestGivesFilesToWaylandWindows()
    {
        QVERIFY(stage().run({{"hoverDelay", "0"}, {"shelfPaths", "[\"/etc/passwd\"]"}}));
        QVERIFY(waitUntil([&] { return dragOut(); }));
    }

private:
    bool dragOut()
    {
        session().command({u"open"_s, u"shelf"_s});
        if (!stage().waitOpen())
            return false;
        input().glide(Place::away, Place::panel);
        input().glide(Place::panel, Place::onlyTile);
        input().pressButton();
        input().glide(Place::onlyTile, Place::away);
        // The window is told of the drag only now, and when the pointer moves.
        for (const int step : {-4, 4, -4, 4}) {
            QTest::qWait(100);
            input().push({step, 0});
        }
        QTest::qWait(100);
        input().releaseButton();
        return waitUntil([&] { return stage().other.count(u"dropped /etc/passwd"_s) > 0; }, 3000);
    }
};

REGISTER_TEST(WaylandGuestDragsTest);
#include "WaylandGuestDragsTest.moc"
