#include "EndToEnd/Stage.h"

/// Screenshots of real tools, from the disk to the closed notch's wings and the pane.
class CapturesTest : public StageTest
{
    Q_OBJECT

private Q_SLOTS:
    void announcesWhatToolsSave_data()
    {
        // folder: in which the tool runs
        const auto row = columns<QString, QString, QString>();
        row("scrot", u"scrot"_s, QString(), u"Pictures"_s);
        row("scrot at home", u"scrot"_s, QString(), u"."_s);
        row("xfce", u"xfce4-screenshooter"_s, u"--fullscreen --save Screenshot_2026-11-21_10-20-30.png"_s,
            u"Desktop"_s);
        row("gnome", u"gnome-screenshot"_s, u"--file=report.png"_s, u"Pictures"_s);
        row("flameshot", u"flameshot"_s, u"full --path HOME/Pictures/Screenshots"_s,
            u"Pictures/Screenshots"_s);
    }

    void announcesWhatToolsSave()
    {
        auto [tool, arguments, folder] = fetched<QString, QString, QString>();
        const QDir home(session().environment().value(u"HOME"_s));
        QVERIFY(home.mkpath(folder) && runWithAnOlderOne(home));
        QVERIFY(!session().hasActivity() && !stage().covered(wing));
        const qsizetype before = pictures(home.filePath(folder)).size();

        ChildProcess process(session().environment());
        process.setWorkingDirectory(home.filePath(folder));
        arguments.replace("HOME"_L1, home.path());
        QVERIFY(process.launch(tool, arguments.split(u' ', Qt::SkipEmptyParts)));
        QVERIFY(waitUntil([&] { return pictures(home.filePath(folder)).size() > before; }));
        QVERIFY(waitUntil([&] { return session().hasActivity(); }));
        // Some tools light the whole display up for a moment.
        const auto isThere = [&] { return stage().covered(wing); };
        QVERIFY(waitUntil([&] { return holdsFor(isThere, 500); }));
    }

private:
    static QStringList pictures(const QString &folder)
    {
        return QDir(folder).entryList({u"*.png"_s}, QDir::Files);
    }
    /// Runs the program until it has made the thumbnail of a picture that was there before: what its first
    /// look finds is not new, and that look asks slow programs for their settings.
    bool runWithAnOlderOne(const QDir &home)
    {
        const QString thumbnails =
            session().environment().value(u"XDG_CACHE_HOME"_s) + u"/thumbnails/large"_s;
        return home.mkpath(u"Pictures"_s) &&
               writeFile(home.filePath(u"Pictures/Screenshot_2026-11-20_10-20-30.png"_s),
                         encoded(plainImage({40, 30}))) &&
               stage().run({{"hoverDelay", "60"}}) &&
               waitUntil([&] { return !pictures(thumbnails).isEmpty(); });
    }

    static constexpr QPoint wing{640 - 160, 12};
};

REGISTER_TEST(CapturesTest);
#include "CapturesTest.moc"
