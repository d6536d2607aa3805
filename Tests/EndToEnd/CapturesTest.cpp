#include "EndToEnd/Stage.h"
#include "Support/TestRegistry.h"

#include <QDir>

/// Screenshots of real tools, from the disk to the closed notch's wings and the pane.
class CapturesTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void announcesWhatToolsSave_data()
    {
        // folder: in which the tool runs
        columns<QString, QString, QString>();
        QTest::newRow("scrot") << u"scrot"_s << QString() << u"Pictures"_s;
        QTest::newRow("scrot at home") << u"scrot"_s << QString() << u"."_s;
        QTest::newRow("xfce") << u"xfce4-screenshooter"_s
                              << u"--fullscreen --save Screenshot_2026-11-21_10-20-30.png"_s << u"Desktop"_s;
        QTest::newRow("gnome") << u"gnome-screenshot"_s << u"--file=report.png"_s << u"Pictures"_s;
        QTest::newRow("flameshot") << u"flameshot"_s << u"full --path HOME/Pictures/Screenshots"_s
                                   << u"Pictures/Screenshots"_s;
    }

    void announcesWhatToolsSave()
    {
        auto [tool, arguments, folder] = fetched<QString, QString, QString>();
        setStage({});
        const QDir home(stage().session.environment().value(u"HOME"_s));
        QVERIFY(home.mkpath(folder));
        QVERIFY(stage().run({{"hoverDelay", "60"}}));
        QVERIFY(!hasActivity() && !stage().covered(wing));

        ChildProcess process(stage().session.environment());
        process.setWorkingDirectory(home.filePath(folder));
        arguments.replace("HOME"_L1, home.path());
        QVERIFY(process.launch(tool, arguments.split(u' ', Qt::SkipEmptyParts)));
        QVERIFY(waitUntil([&] { return !pictures(home.filePath(folder)).isEmpty(); }));
        QVERIFY(waitUntil([&] { return hasActivity(); }));
        QTRY_VERIFY(stage().covered(wing));
    }

    void aSecondOneStartsTheTimeAnew()
    {
        setStage({});
        const QDir home(stage().session.environment().value(u"HOME"_s));
        QVERIFY(home.mkpath(u"Pictures"_s));
        shoot(home); // before the program runs: nothing new
        QVERIFY(stage().run({{"hoverDelay", "60"}}));
        QVERIFY(holdsFor([&] { return !hasActivity(); }, 1500));
        QTest::qWait(1000); // the names of the two differ by the second
        shoot(home);
        QVERIFY(waitUntil([&] { return hasActivity(); }));
        QTest::qWait(1500);
        QElapsedTimer second;
        second.start();
        shoot(home);
        QVERIFY(waitUntil([&] { return !hasActivity(); }));
        QVERIFY2(second.elapsed() > 5500, "six seconds after the second one");
        QTRY_VERIFY(!stage().covered(wing));

        QVERIFY(stage().session.set(u"announceScreenshots"_s, u"false"_s));
        shoot(home);
        QVERIFY(holdsFor([&] { return !hasActivity(); }, 1500));
        for (const QString &name : pictures(home.filePath(u"Pictures"_s)))
            QVERIFY(QFile::remove(home.filePath(u"Pictures/"_s + name)));
        QVERIFY(holdsFor([&] { return stage().session.isRunning(); }, 500));
    }

private:
    static QStringList pictures(const QString &folder)
    {
        return QDir(folder).entryList({u"*.png"_s}, QDir::Files);
    }
    bool hasActivity() { return stage().session.status().value("hasActivity"_L1).toBool(); }
    void shoot(const QDir &home)
    {
        ChildProcess process(stage().session.environment());
        process.setWorkingDirectory(home.filePath(u"Pictures"_s));
        QVERIFY(process.launch(u"scrot"_s) && process.waitForFinished());
    }

    static constexpr QPoint wing{640 - 160, 12};
};

REGISTER_TEST(CapturesTest);
#include "CapturesTest.moc"
