#include "EndToEnd/FileManager.h"
#include "EndToEnd/Wayland/WaylandStage.h"

#include <algorithm>

/// Files dragged between the shelf and file managers that people use.
class WaylandFileManagerTest : public WaylandStageTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesArriveAndLeaveAsCopies_data()
    {
        using enum Compositor::Kind;
        QTest::addColumn<WaylandStage::Desktop>("desktop");
        QTest::addColumn<QString>("manager");
        for (const QString &manager : {u"pcmanfm"_s, u"pcmanfm-qt"_s}) {
            for (const auto &[name, kind] : {std::pair("sway", Sway), {"labwc", Labwc}, {"KWin", KWin}})
                QTest::addRow("%s, %s", name, qPrintable(manager)) << WaylandStage::Desktop{kind} << manager;
        }
    }
    void filesArriveAndLeaveAsCopies()
    {
        QFETCH(QString, manager);
        const DraggedFile file(session());
        QVERIFY(stage().run({{"openMode", "click"}}));
        {
            const FileManager window(session(), manager, file.from, u"wayland"_s);
            QTRY_VERIFY(!stage().other.hasFocus());
            stage().other.stop(); // Tiled, the window has the display for itself then.
            QVERIFY(waitUntil([&] { return dragToNotch(manager); }));
            QCOMPARE(session().selected(), u"shelf"_s);
            input().glide(Place::notch, Place::panel);
            input().releaseButton();
            QTRY_COMPARE(file.shelved(), QStringList{file.original});
        }
        const FileManager window(session(), manager, file.to, u"wayland"_s);
        QVERIFY(waitUntil([&] { return dragOut(file); }));
        QTRY_COMPARE(readFile(file.copy), "content"_ba);
        QCOMPARE(readFile(file.original), "content"_ba);
        QCOMPARE(file.shelved(), QStringList{file.original});
        QVERIFY(stage().waitClosed());
    }

private:
    /// Whether the window's file is over the open notch now; the window may not be there yet.
    bool dragToNotch(const QString &manager)
    {
        const QList<QPoint> places = FileManager::onlyFile(manager);
        return std::ranges::any_of(places, [this](QPoint place) {
            input().move(FileManager::empty); // Or a release on the notch would open it.
            input().releaseButton();
            input().move(place);
            QTest::qWait(100);
            input().pressButton();
            input().glide(place, Place::notch);
            return waitUntil([&] { return session().isOpen(); }, 1000);
        });
    }

    bool dragOut(const DraggedFile &file)
    {
        input().click(Place::notch);
        if (!stage().waitVisited())
            return false;
        input().glide(Place::notch, Place::onlyTile);
        input().pressButton();
        input().glide(Place::onlyTile, FileManager::empty);
        QTest::qWait(300);
        input().releaseButton();
        QTest::qWait(300);
        input().glide(FileManager::empty, FileManager::copyHere);
        input().click(FileManager::copyHere);
        return waitUntil([&] { return QFile::exists(file.copy); }, 2000);
    }
};

REGISTER_TEST(WaylandFileManagerTest);
#include "WaylandFileManagerTest.moc"
