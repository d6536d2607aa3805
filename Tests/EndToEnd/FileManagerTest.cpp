#include "EndToEnd/FileManager.h"
#include "EndToEnd/Stage.h"

#include <algorithm>

/// Files dragged between the shelf and file managers that people use.
class FileManagerTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesArriveAndLeaveAsCopies_data()
    {
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
        texts({"pcmanfm", "pcmanfm-qt"});
#else
        texts({"pcmanfm"}); // The other one's drag does not finish there.
#endif
    }
    void filesArriveAndLeaveAsCopies()
    {
        const auto [manager] = fetched<QString>();
        const DraggedFile file(session());
        QVERIFY(stage().run({{"openMode", "click"}}));
        {
            const FileManager window(session(), manager, file.from, u"x11"_s);
            QVERIFY(waitUntil([&] { return dragToNotch(manager); }));
            QCOMPARE(session().selected(), u"shelf"_s);
            input().move(Place::panel);
            QTest::qWait(200);
            input().releaseButton();
            QTRY_COMPARE(file.shelved(), QStringList{file.original});
        }
        const FileManager window(session(), manager, file.to, u"x11"_s);
        QVERIFY(waitUntil([&] { return dragOut(file); }));
        QTRY_COMPARE(readFile(file.copy), "content"_ba);
        QCOMPARE(readFile(file.original), "content"_ba);
        QCOMPARE(file.shelved(), QStringList{file.original});
        QTRY_VERIFY(!session().isOpen());
    }

private:
    static constexpr QPoint onlyTile{640, 120};

    /// Whether the window's file is over the open notch now; the window may not be there yet.
    bool dragToNotch(const QString &manager)
    {
        const QList<QPoint> places = FileManager::onlyFile(manager);
        return std::ranges::any_of(places, [this](QPoint place) {
            input().move(FileManager::empty); // Or a release on the notch would open it.
            input().releaseButton();
            input().drag(place, Place::notch);
            return waitUntil([&] { return session().isOpen(); }, 1000);
        });
    }

    bool dragOut(const DraggedFile &file)
    {
        input().click(Place::notch);
        if (!waitUntil([&] { return session().isOpen(); }))
            return false;
        input().drag(onlyTile, FileManager::empty);
        input().releaseButton();
        QTest::qWait(300);
        input().click(FileManager::copyHere);
        return waitUntil([&] { return QFile::exists(file.copy); }, 2000);
    }
};

REGISTER_TEST(FileManagerTest);
#include "FileManagerTest.moc"
