#include "EndToEnd/Stage.h"

/// Several displays that come and go.
class DisplaysTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { setStage({.server = VirtualDisplay::Server::Outputs}); }

    void oneNotchPerDisplayOnRequest()
    {
        QVERIFY(stage().display.plugSecond(true) && stage().run());
        const QColor desktop = stage().x.pixel({1920, 100});
        QVERIFY(showsNotches(1));
        QCOMPARE(stage().x.pixel(secondNotch), desktop);

        QVERIFY(session().set(u"allDisplays"_s, u"true"_s));
        QTRY_VERIFY(showsNotches(2));
        QTRY_VERIFY(stage().x.pixel(secondNotch) != desktop);
        QVERIFY(stage().covered(Place::notch));
        const QJsonObject frame = session().display(1).value("frame"_L1).toObject();
        QCOMPARE(frame.value("x"_L1).toDouble(), 1280.0);
        QCOMPARE(frame.value("width"_L1).toDouble(), 1280.0);

        input().move(secondNotch);
        QTRY_VERIFY(session().isOpen(1));
        QTRY_VERIFY(stage().x.pixel(secondOpened) != desktop);
        QVERIFY(!session().isOpen(0));

        QVERIFY(session().set(u"allDisplays"_s, u"false"_s));
        QTRY_VERIFY(showsNotches(1));
        QTRY_COMPARE(stage().x.pixel(secondNotch), desktop);
    }

    void theHotKeyOpensWhereThePointerIs()
    {
        QVERIFY(stage().display.plugSecond(true) && stage().run({{"allDisplays", "true"}}));
        QTRY_VERIFY(showsNotches(2));
        input().move({1920, 600});
        input().hotKey();
        QTRY_VERIFY(session().isOpen(1));
        QVERIFY(!session().isOpen(0));

        // An open notch goes with its display.
        QVERIFY(stage().display.plugSecond(false));
        QTRY_VERIFY(showsNotches(1));
        QVERIFY(!session().status().value("anyExpanded"_L1).toBool());
    }

    void aNotchGoesWhereItsDisplayGoes()
    {
        QVERIFY(stage().display.plugSecond(true));
        QVERIFY(stage().run({{"allDisplays", "true"}}));
        QTRY_VERIFY(showsNotches(2));
        for (const int width : {1024, 1280, 800, 1280, 1024}) {
            QVERIFY(stage().display.resizeFirst({width, width == 1280 ? 800 : width * 3 / 4}));
            const auto placeOf = [&](int index, const char *value) {
                return session().display(index).value("frame"_L1)[QLatin1String(value)].toInt();
            };
            QTRY_COMPARE(placeOf(0, "width"), width);
            QTRY_COMPARE(placeOf(1, "x"), width);
            QTRY_VERIFY(stage().x.pixel({width + 640, 16}).lightness() == 0);
        }
    }

    void pluggingAHundredTimesLeavesNothingBehind()
    {
        QVERIFY(stage().run({{"allDisplays", "true"}}));
        QTest::qWait(5000); // What opens first is made by then, for the display that stays.
        qint64 memory = 0;
        for (int round = 1; round <= 100; ++round) {
            QVERIFY(stage().display.plugSecond(true));
            QTRY_VERIFY2(showsNotches(2), qPrintable(QString::number(round)));
            QVERIFY(stage().display.plugSecond(false));
            QTRY_VERIFY2(showsNotches(1), qPrintable(QString::number(round)));
            if (round == 10)
                memory = session().ownMemory();
        }
        // One lost picture of a notch is more than a megabyte; ninety of them would not go unseen.
        const qint64 growth = session().ownMemory() - memory;
        QVERIFY2(memory > 0 && growth < 2048, qPrintable(u"%1 kB more"_s.arg(growth)));
        QVERIFY(stage().openByHotKey());
    }

private:
    /// As many notches as that are on screen, and no window of a former one.
    bool showsNotches(int count)
    {
        return session().displays().size() == count && stage().x.topWindows({880, 390}).size() == count;
    }

    static constexpr QPoint secondNotch = {1920, 16};
    static constexpr QPoint secondOpened = {1920, 60};
};

REGISTER_TEST(DisplaysTest);
#include "DisplaysTest.moc"
