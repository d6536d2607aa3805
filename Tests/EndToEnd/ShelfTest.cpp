#include "EndToEnd/DragSource.h"
#include "EndToEnd/Stage.h"

/// Files dragged onto the notch and out of it.
class ShelfTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void filesOfAFileManagerArriveInOrderAndLeaveAsCopies()
    {
        const QStringList files{u"a 100%.txt"_s, u"b\nü日本.txt"_s, u"c#.txt"_s};
        QVERIFY(fill(u"from"_s, files) && fill(u"to"_s, {}) && stage().run());
        ChildProcess manager(session().environment());
        QVERIFY(manager.launch(u"pcmanfm"_s, {path(u"from"_s)}));
        const QPoint from = placeWindow();
        QTRY_VERIFY_WITH_TIMEOUT((dragAllToNotch(from), session().isOpen()), 20000);
        QCOMPARE(session().selected(), u"shelf"_s);
        input().move(Place::panel);
        QTest::qWait(200);
        input().releaseButton();
        const QStringList paths =
            each(files, [this](const QString &file) { return path(u"from/"_s + file); });
        QTRY_COMPARE(shelved(), paths);
        QVERIFY(session().isOpen());
        manager.stop();

        ChildProcess other(session().environment());
        QVERIFY(other.launch(u"pcmanfm"_s, {path(u"to"_s)}));
        const QPoint to = placeWindow() + QPoint(400, 350);
        QVERIFY(stage().openByHover());
        const auto dragOut = [&] {
            input().drag(firstOfThree, to);
            input().releaseButton();
            return waitUntil([&] { return QFile::exists(path(u"to/"_s + files[0])); }, 2000);
        };
        QTRY_VERIFY_WITH_TIMEOUT(stage().openByHover() && dragOut(), 20000);
        QVERIFY(QFile::exists(paths[0]) && shelved() == paths && stage().waitClosed());
        other.stop();

        session().program().killNow();
        QVERIFY(QFile::remove(paths[1]) && session().start());
        QTRY_COMPARE(shelved(), QStringList({paths[0], paths[2]}));
    }

    void onlyFilesOpenTheNotch_data()
    {
        const auto row = columns<QByteArray, QByteArray, bool, QStringList>();
        QTemporaryDir &folder = m_many.emplace();
        const QByteArray files =
            "# two\r\nfile:///etc/passwd\r\nhttps://example.org/\r\nfile:///etc/group\r\n";
        QByteArray many;
        QStringList all;
        for (int i = 0; i < 2000; ++i) {
            all.append(folder.filePath(u"A file with quite a long name %1"_s.arg(i)));
            QVERIFY(writeFile(all.last()));
            many += QUrl::fromLocalFile(all.last()).toEncoded() + "\r\n";
        }
        row("files", "text/uri-list"_ba, files, true, QStringList{u"/etc/passwd"_s, u"/etc/group"_s});
        row("a list in parts", "text/uri-list"_ba, many, true, all);
        row("web links", "text/uri-list"_ba, "https://example.org/\r\n"_ba, true, QStringList());
        row("text", "text/plain"_ba, files, true, QStringList());
        row("a source that hangs", "text/uri-list"_ba, files, false, QStringList());
    }
    void onlyFilesOpenTheNotch()
    {
        const auto [type, content, answers, kept] = fetched<QByteArray, QByteArray, bool, QStringList>();
        QVERIFY(stage().run());
        DragSource source(stage().display.name(), type, content);
        dragIn(source);
        const auto serve = [&] {
            if (answers)
                source.answer();
        };
        const qint64 limit = kept.isEmpty() ? 3000 : 60'000;
        QCOMPARE(waitUntil([&] { return serve(), session().isOpen(); }, limit), !kept.isEmpty());
        if (kept.isEmpty()) {
            input().releaseButton();
            QCOMPARE(shelved(), QStringList());
            return;
        }
        source.position(Place::notch);
        QTRY_VERIFY(source.accepted());
        source.drop();
        input().releaseButton();
        QTRY_VERIFY((serve(), !shelved().isEmpty()));
        QCOMPARE(shelved().size(), kept.size());
        QCOMPARE(shelved(), kept);
    }

    void aDragThatIsOverLeavesNothingBehind()
    {
        QVERIFY(stage().run());
        {
            DragSource source(stage().display.name(), "text/uri-list", "file:///etc/passwd\r\n");
            // It still owns the selection, and says nothing to the notch: no drag is going on.
            input().move(Place::away);
            input().pressButton();
            input().move(Place::notch);
            QVERIFY(holdsFor([&] { return !session().isOpen(); }, 500));
            input().move(Place::away); // Resting there, it would open the notch by and by.
            input().releaseButton();
            QVERIFY(stage().waitClosed());
            dragIn(source);
            QTRY_VERIFY((source.answer(), session().isOpen()));
        }
        // It died over the notch, which closes as if nothing had been dragged.
        input().releaseButton();
        QVERIFY(stage().leave());
        QCOMPARE(shelved(), QStringList());
    }

private:
    static constexpr QPoint firstOfThree{528, 110};

    std::optional<QTemporaryDir> m_many;

    QString path(const QString &name) { return session().environment().value(u"HOME"_s) + u'/' + name; }

    bool fill(const QString &folder, const QStringList &names)
    {
        return QDir().mkpath(path(folder)) && std::ranges::all_of(names, [&](const QString &name) {
                   return writeFile(path(folder + u'/' + name), "content");
               });
    }

    QStringList shelved()
    {
        const auto stored = QJsonDocument::fromJson(session().setting(u"shelfPaths"_s).toUtf8());
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

    void dragAllToNotch(QPoint window)
    {
        input().releaseButton();
        input().click(window + QPoint(560, 330));
        input().pressKey(XK_Control_L);
        input().tap(XK_a);
        input().releaseKey(XK_Control_L);
        input().drag(window + QPoint(204, 79), Place::notch);
    }

    /// Presses elsewhere, moves onto the notch and tells its window.
    void dragIn(DragSource &source)
    {
        input().move(Place::away);
        input().pressButton();
        QTest::qWait(100);
        source.enter(stage().x.topWindows({880, 390}).value(0));
        input().move(Place::notch);
        source.position(Place::notch);
    }
};

REGISTER_TEST(ShelfTest);
#include "ShelfTest.moc"
