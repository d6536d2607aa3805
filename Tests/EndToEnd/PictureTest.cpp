#include "EndToEnd/Stage.h"

/// What is seen on the screen: the notch's outline, and the desktop untouched around it.
class PictureTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void onlyTheNotchIsDrawn_data() { noAndYes("no compositor", "compositor"); }

    void onlyTheNotchIsDrawn()
    {
        const auto [compositor] = fetched<bool>();
        setStage({.compositor = compositor});
        const QRect closed(640 - 95, 0, 190, 32);
        const QRect open(640 - 380, 0, 760, 330);
        const QImage before = stage().x.grab({0, 0, 1280, 450});
        QVERIFY(stage().run());
        QTRY_VERIFY(fills(changedArea(before), closed));
        QVERIFY(stage().x.pixel(Place::notch) == QColor(Qt::black));
        // The outline is rounded: its corners show the desktop, its body is inset below the flared top.
        for (const QPoint corner :
             {closed.bottomLeft(), closed.bottomRight(), QPoint(546, 20), QPoint(733, 20)})
            QVERIFY2(!stage().covered(corner), qPrintable(QDebug::toString(corner)));

        QVERIFY(stage().openByHotKey());
        QTest::qWait(700); // the spring comes to rest
        QTRY_VERIFY(compositor || fills(changedArea(before), open));
        for (const QPoint corner :
             {open.bottomLeft(), open.bottomRight(), QPoint(262, 200), QPoint(1017, 200)})
            QVERIFY2(compositor || !stage().covered(corner), qPrintable(QDebug::toString(corner)));
        QVERIFY(!stage().covered({205, 200}) && !stage().covered({1074, 200}) &&
                !stage().covered({640, 388}));

        QVERIFY(stage().close());
        QTRY_VERIFY(fills(changedArea(before), closed));
    }

    void fitsADenseDisplay_data() { noAndYes("scale factor", "dots per inch"); }

    void fitsADenseDisplay()
    {
        const auto [byResource] = fetched<bool>();
        setStage({.size = {2560, 1600}});
        if (byResource)
            stage().x.setText(stage().x.root(), "RESOURCE_MANAGER", "Xft.dpi:\t192\n");
        else
            session().environment().insert(u"QT_SCALE_FACTOR"_s, u"2"_s);
        const QImage before = stage().x.grab({0, 0, 2560, 900});
        QVERIFY(stage().run());
        QTRY_VERIFY(fills(changedArea(before), QRect(1280 - 190, 0, 380, 64)));
        const QJsonObject frame = session().display().value("frame"_L1).toObject();
        QCOMPARE(frame.value("width"_L1).toDouble(), 1280.0);
        QCOMPARE(frame.value("height"_L1).toDouble(), 800.0);

        input().move({1280, 40});
        QTRY_VERIFY(fills(changedArea(before), QRect(1280 - 760, 0, 1520, 660)));
        QVERIFY(stage().clickIsKept({1280, 670}) && stage().clickReachesBeneath({1280, 684}));
        input().move({1280, 1500});
        QTRY_VERIFY(fills(changedArea(before), QRect(1280 - 190, 0, 380, 64)));
    }

    /// Every tool after each other one, over the empty desktop: a change of tool paints anew only what has
    /// changed, and neither program nor compositor may leave out anything of it.
    void nothingShowsThroughTheOpenNotch()
    {
        setStage({.compositor = true});
        QVERIFY(stage().run());
        const QStringList tools = session().tools();
        QVERIFY(tools.size() > 2);
        xcb_unmap_window(stage().x.connection(), stage().beneath.id());
        QTRY_VERIFY(stage().x.pixel(Place::away) != stage().beneath.colour());
        const QRect body(300, 0, 680, 290); // inside the open notch, whatever little its springs still move
        const QColor desktop = stage().x.pixel(Place::away);
        QCOMPARE(session().command({u"open"_s, tools.constFirst()}).status, 0);
        QTest::qWait(700); // the spring comes to rest
        QImage row;
        QVERIFY(waitUntil([&] { return settlesAfter(row); }));
        QString before = tools.constFirst();
        QStringList faults;
        const auto visit = [&](const QString &tool) {
            if (tool == before)
                return;
            const bool opened = session().command({u"open"_s, tool}).status == 0 &&
                                waitUntil([&] { return settlesAfter(row); });
            const QImage now = stage().x.grab(body);
            const QRect hole =
                areaWhere(now.size(), [&](int x, int y) { return now.pixelColor(x, y) == desktop; });
            if (!opened || !hole.isEmpty())
                faults += u"%1 after %2: %3"_s.arg(tool, before, QDebug::toString(hole));
            before = tool;
        };
        // Goes from each tool to each other one exactly once.
        for (qsizetype i = 0; i < tools.size(); ++i) {
            for (qsizetype j = i + 1; j < tools.size(); ++j) {
                visit(tools.at(i));
                visit(tools.at(j));
            }
        }
        visit(tools.constFirst());
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }

private:
    /// Whether the open notch's tool row is another one than `row` and has come to rest; `row` is that one
    /// then.
    bool settlesAfter(QImage &row)
    {
        const QImage now = stage().x.grab(Place::toolRow);
        QTest::qWait(60);
        if (now == row || stage().x.grab(Place::toolRow) != now)
            return false;
        row = now;
        return true;
    }

    /// Whether an outline with that area fills `frame`; the tips of its flared top may be too thin to show.
    static bool fills(const QRect &area, const QRect &frame)
    {
        return frame.contains(area) &&
               area.contains(frame.adjusted(frame.height() / 5, 0, -frame.height() / 5, 0));
    }

    /// What of the top of the screen differs from `before`.
    QRect changedArea(const QImage &before)
    {
        const QImage now = stage().x.grab(before.rect());
        return areaWhere(now.size(), [&](int x, int y) { return now.pixel(x, y) != before.pixel(x, y); });
    }
};

REGISTER_TEST(PictureTest);
#include "PictureTest.moc"
