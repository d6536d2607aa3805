#include "EndToEnd/DragSource.h"
#include "EndToEnd/Stage.h"
#include "Support/TestRegistry.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QUrl>

/// Files dragged onto the notch and out of it.
class ShelfTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesOfAFileManagerArriveInOrderAndLeaveAsCopies()
    {
        setStage({});
        const QStringList files{u"a 100%.txt"_s, u"b\nü日本.txt"_s, u"c#.txt"_s};
        QVERIFY(fill(u"from"_s, files) && fill(u"to"_s, {}) && stage().run());
        ChildProcess manager(stage().session.environment());
        QVERIFY(manager.launch(u"pcmanfm"_s, {path(u"from"_s)}));
        const QPoint from = placeWindow();
        QTRY_VERIFY_WITH_TIMEOUT((dragAllToNotch(from), stage().session.isOpen()), 20000);
        QCOMPARE(stage().session.selected(), u"shelf"_s);
        stage().input.move(Place::panel);
        QTest::qWait(200);
        stage().input.releaseButton();
        QStringList paths;
        for (const QString &file : files)
            paths.append(path(u"from/"_s + file));
        QTRY_COMPARE(shelved(), paths);
        QVERIFY(stage().session.isOpen());
        manager.stop();

        ChildProcess other(stage().session.environment());
        QVERIFY(other.launch(u"pcmanfm"_s, {path(u"to"_s)}));
        const QPoint to = placeWindow() + QPoint(400, 350);
        QVERIFY(stage().openByHover());
        const auto dragOut = [&] {
            drag(firstOfThree, to);
            stage().input.releaseButton();
            return waitUntil([&] { return QFile::exists(path(u"to/"_s + files[0])); }, 2000);
        };
        QTRY_VERIFY_WITH_TIMEOUT(stage().openByHover() && dragOut(), 20000);
        QVERIFY(QFile::exists(paths[0]) && shelved() == paths && stage().waitClosed());
        other.stop();

        stage().session.program().killNow();
        QVERIFY(QFile::remove(paths[1]) && stage().session.start());
        QTRY_COMPARE(shelved(), QStringList({paths[0], paths[2]}));
    }

    void onlyFilesOpenTheNotch_data()
    {
        columns<QByteArray, QByteArray, bool, QStringList>();
        QTemporaryDir &folder = m_many.emplace();
        const QByteArray files =
            "# two\r\nfile:///etc/passwd\r\nhttps://example.org/\r\nfile:///etc/group\r\n";
        QByteArray many;
        QStringList all;
        for (int i = 0; i < 2000; ++i) {
            QFile file(folder.filePath(u"A file with quite a long name %1"_s.arg(i)));
            QVERIFY(file.open(QFile::WriteOnly));
            many += QUrl::fromLocalFile(file.fileName()).toEncoded() + "\r\n";
            all.append(file.fileName());
        }
        QTest::newRow("files") << "text/uri-list"_ba << files << true
                               << QStringList{u"/etc/passwd"_s, u"/etc/group"_s};
        QTest::newRow("a list in parts") << "text/uri-list"_ba << many << true << all;
        QTest::newRow("web links") << "text/uri-list"_ba
                                   << "https://example.org/\r\n"_ba << true << QStringList();
        QTest::newRow("text") << "text/plain"_ba << files << true << QStringList();
        QTest::newRow("a source that hangs") << "text/uri-list"_ba << files << false << QStringList();
    }
    void onlyFilesOpenTheNotch()
    {
        const auto [type, content, answers, kept] = fetched<QByteArray, QByteArray, bool, QStringList>();
        setStage({});
        QVERIFY(stage().run());
        DragSource source(stage().display.name(), type, content);
        dragIn(source);
        const auto serve = [&] {
            if (answers)
                source.answer();
        };
        const qint64 limit = kept.isEmpty() ? 3000 : 60'000;
        QCOMPARE(waitUntil([&] { return serve(), stage().session.isOpen(); }, limit), !kept.isEmpty());
        if (kept.isEmpty()) {
            stage().input.releaseButton();
            QCOMPARE(shelved(), QStringList());
            return;
        }
        source.position(Place::notch);
        QTRY_VERIFY(source.accepted());
        source.drop();
        stage().input.releaseButton();
        QTRY_VERIFY((serve(), !shelved().isEmpty()));
        QCOMPARE(shelved().size(), kept.size());
        QCOMPARE(shelved(), kept);
    }

    void aDragThatIsOverLeavesNothingBehind()
    {
        setStage({});
        QVERIFY(stage().run());
        {
            DragSource source(stage().display.name(), "text/uri-list", "file:///etc/passwd\r\n");
            // It still owns the selection, and says nothing to the notch: no drag is going on.
            stage().input.move(Place::away);
            stage().input.pressButton();
            stage().input.move(Place::notch);
            QVERIFY(holdsFor([&] { return !stage().session.isOpen(); }, 500));
            stage().input.releaseButton();
            QVERIFY(stage().waitClosed());
            dragIn(source);
            QTRY_VERIFY((source.answer(), stage().session.isOpen()));
        }
        // It died over the notch, which closes as if nothing had been dragged.
        stage().input.releaseButton();
        stage().input.move(Place::away);
        QVERIFY(stage().waitClosed());
        QCOMPARE(shelved(), QStringList());
    }

private:
    static constexpr QPoint firstOfThree{528, 110};

    std::optional<QTemporaryDir> m_many;

    QString path(const QString &name) { return stage().session.environment().value(u"HOME"_s) + u'/' + name; }

    bool fill(const QString &folder, const QStringList &names)
    {
        return QDir().mkpath(path(folder)) && std::ranges::all_of(names, [&](const QString &name) {
                   QFile file(path(folder + u'/' + name));
                   return file.open(QFile::WriteOnly) && file.write("content") > 0;
               });
    }

    QStringList shelved()
    {
        const auto stored = QJsonDocument::fromJson(stage().session.setting(u"shelfPaths"_s).toUtf8());
        return QVariant(stored.array().toVariantList()).toStringList();
    }

    /// Puts the file manager's window, once it is there, below the open notch.
    QPoint placeWindow()
    {
        const auto windows = [this] { return stage().x.clientWindows(); };
        if (!waitUntil([&] { return windows().size() == 2; }, 20000))
            return {};
        const xcb_window_t window = windows().last();
        const QRect place(40, 360, 640, 420);
        constexpr quint32 allFour = 0xf00 | XCB_GRAVITY_STATIC;
        stage().x.ask(window, "_NET_MOVERESIZE_WINDOW",
                      {allFour, quint32(place.x()), quint32(place.y()), quint32(place.width()),
                       quint32(place.height())});
        stage().x.ask(window, "_NET_ACTIVE_WINDOW", {2});
        return place.topLeft();
    }

    void drag(QPoint from, QPoint to)
    {
        stage().input.move(from);
        QTest::qWait(100);
        stage().input.pressButton();
        for (int step = 1; step <= 12; ++step) {
            stage().input.move(from + (to - from) * step / 12);
            QTest::qWait(25);
        }
        QTest::qWait(300);
    }

    void dragAllToNotch(QPoint window)
    {
        stage().input.releaseButton();
        stage().input.click(window + QPoint(560, 330));
        stage().input.pressKey(XK_Control_L);
        stage().input.tap(XK_a);
        stage().input.releaseKey(XK_Control_L);
        drag(window + QPoint(204, 79), Place::notch);
    }

    /// Presses elsewhere, moves onto the notch and tells its window.
    void dragIn(DragSource &source)
    {
        stage().input.move(Place::away);
        stage().input.pressButton();
        QTest::qWait(100);
        source.enter(stage().x.topWindows({880, 390}).value(0));
        stage().input.move(Place::notch);
        source.position(Place::notch);
    }
};

REGISTER_TEST(ShelfTest);
#include "ShelfTest.moc"
