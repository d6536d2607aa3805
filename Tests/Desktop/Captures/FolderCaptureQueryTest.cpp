#include "Desktop/Captures/FolderCaptureQuery.h"
#include "CaptureHome.h"
#include "Desktop/Captures/ScreenshotNames.h"
#include "Desktop/Captures/ScreenshotTools.h"
#include "Support/Fakes.h"
#include "Support/TestRegistry.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// A query over a home folder, followed as it changes.
struct Stage
{
    CaptureHome home;
    Fakes::MemoryDefaults preferences;
    FolderCaptureQuery query{preferences};
    int calls = 0;

    /// Starts and waits until the first gathering is done.
    bool start()
    {
        query.installHandler([this] { ++calls; });
        query.start();
        return QTest::qWaitFor([this] { return calls > 0; }, 60'000);
    }

    /// Below the home folder, newest first.
    QStringList found() const
    {
        const QDir folder(home.folder.path());
        return each(query.results(), [&](const auto &found) { return folder.relativeFilePath(found.path); });
    }
    bool finds(const QStringList &names) const
    {
        return QTest::qWaitFor([&] { return found() == names; }, 60'000);
    }
    bool findsNoMoreThan(const QStringList &names) const
    {
        QTest::qWait(300);
        return found() == names;
    }
};

const QString kShot = u"Pictures/Screenshot from 2026-11-21 10-20-30.png"_s;

} // namespace

class FolderCaptureQueryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data()
    {
        QTest::addColumn<bool>("isScreenshot");
        const auto rows = [](bool isScreenshot, const QByteArray &names) {
            for (const QByteArray &name : names.split(','))
                QTest::newRow(name.trimmed().constData()) << isScreenshot;
        };
        rows(true,
             "Screenshot from 2026-11-21 10-20-30.png, Screenshot_2026-11-21_10-20-30.png, "
             "screenshot.webp, Screenshot_20261121_102030.png, Screenshot-3.JPG, "
             "Screen Shot 2026-11-21 at 10.20.30.png, Screenshot at 2026-11-21 10-20-30.png, "
             "2026-11-21_10-20.png, 2026-11-21_10-20-30_2.png, 2026-11-21-102030_1280x800_scrot.png, "
             "2026-11-21-102030_1280x800_scrot_000.png, 20261121_10h20m30s_grim.png, "
             "ksnip_20261121-102030.png, Bildschirmfoto vom 2026-11-21 10-20-30.png, "
             "Bildschirmfoto_2026-11-21.png, Capture d’écran du 2026-11-21.png, "
             "Capture d'e\u0301cran_20261121.png, Captura de pantalla de 2026-11-21.png, "
             "Schermata del 2026-11-21.png, Istantanea_2026.png, Captura de tela de 2026-11-21.png, "
             "Schermafdruk van 2026-11-21.png, Zrzut ekranu z 2026.png, Снимок экрана от 2026-11-21.png, "
             "スクリーンショット 2026-11-21.png, 截图录屏_选择区域_2026.png, 屏幕截图 2026-11-21.png, "
             "스크린샷 2026-11-21.png, لقطة شاشة 2026-11-21.png");
        rows(false, "IMG_20261121_102030.jpg, 2026-11-21_10-20.jpg, 20261121_102030.png, "
                    "Screenshotter.png, holiday screenshot plan.png, Schermatazo.png, "
                    "2026-11-21 Screens.png, scrot.png, ksnip.png");
    }

    void names()
    {
        const QString name = QString::fromUtf8(QTest::currentDataTag());
        QVERIFY(ScreenshotNames::isPicture(name));
        QTEST(ScreenshotNames().isScreenshot(name), "isScreenshot");
    }

    void folderNames()
    {
        for (const char *name : {"Screenshots", "Bildschirmfotos", "Captures d’écran", "Schermate", "截图"})
            QVERIFY2(ScreenshotNames::isScreenshotFolder(QString::fromUtf8(name)), name);
        for (const char *name : {"Screen", "Screenshots of 2025", "Photos", "Capture"})
            QVERIFY2(!ScreenshotNames::isScreenshotFolder(QString::fromUtf8(name)), name);
        QVERIFY(!ScreenshotNames::isPicture(u"Screenshot.avif"_s));
    }

    void contentDecidesWhereTheNameDoesNot()
    {
        Stage stage;
        const auto png = [](const char *software) {
            return CaptureHome::picture({40, 30}, "png", QString::fromLatin1(software));
        };
        stage.home.write(u"Pictures/holiday.jpg"_s, CaptureHome::picture({40, 30}, "jpg"));
        stage.home.write(u"Pictures/holiday.png"_s);
        stage.home.write(u"Pictures/edited.png"_s, png("GIMP"));
        stage.home.write(u"Pictures/text.png"_s, "no picture at all");
        stage.home.write(u"Pictures/Trip/Screenshot.png"_s);
        stage.home.write(u"Pictures/report.png"_s, png("gnome-screenshot"));
        QVERIFY(stage.start());
        QCOMPARE(stage.found(), QStringList{u"Pictures/report.png"_s});
        stage.home.write(u"Desktop/other.png"_s);
        stage.home.write(u"Desktop/door.png"_s, png("Spectacle"));
        QVERIFY(stage.finds({u"Desktop/door.png"_s, u"Pictures/report.png"_s}));
        stage.home.write(u"Pictures/Screenshots/any.jpg"_s, CaptureHome::picture({40, 30}, "jpg"));
        QVERIFY(stage.finds(
            {u"Pictures/Screenshots/any.jpg"_s, u"Desktop/door.png"_s, u"Pictures/report.png"_s}));
    }

    void foldersBelowCount()
    {
        Stage stage;
        const QString shots = stage.home.make(u"mine"_s);
        stage.preferences.setObject(FolderCaptureQuery::locationKey(), shots);
        stage.home.write(u"mine/2026/11/one.png"_s);
        stage.home.write(u"mine/.hidden/no.png"_s);
        stage.home.write(u"mine/1/2/3/4/too deep.png"_s);
        QVERIFY(stage.start());
        QCOMPARE(stage.found(), QStringList{u"mine/2026/11/one.png"_s});
        stage.home.write(u"mine/2026/12/two.png"_s); // In a folder that is made with it.
        QVERIFY(stage.finds({u"mine/2026/12/two.png"_s, u"mine/2026/11/one.png"_s}));
        QVERIFY(QFile::remove(stage.home.path(u"mine/2026/11/one.png"_s)));
        QVERIFY(stage.finds({u"mine/2026/12/two.png"_s}));
        for (int i = 0; i < 300; ++i)
            stage.home.make(u"mine/many/%1"_s.arg(i));
        stage.home.write(u"mine/2026/12/three.png"_s);
        QVERIFY2(stage.finds({u"mine/2026/12/three.png"_s, u"mine/2026/12/two.png"_s}),
                 "it got lost among many");
    }

    void settingsOfTools_data()
    {
        const auto row = columns<QString, QString, QString>();
        row("xfce", "xfce4/xfce4-screenshooter", "screenshot_dir=file:HOME/office\n",
            "office/Screenshot_1.png");
        row("xfce's title", "xfce4/xfce4-screenshooter", "title=My %shot\nscreenshot_dir=file://HOME/w%20k\n",
            "w k/My %shot_2026-11-21_10-20-30-1.png");
        row("flameshot", "flameshot/flameshot.ini",
            "[General]\nsavePath=HOME/office\nfilenamePattern=\"take %d.%m.%y, %H.%M %%\"\n",
            "office/take 21.11.26, 10.20 %.png");
        row("spectacle", "spectaclerc", "[Save]\ndefaultSaveLocation[$e]=file://$HOME/office\n",
            "office/Screenshot_2026.png");
        row("spectacle's later", "spectaclerc", "[ImageSave]\nimageSaveLocation=file://HOME/office/\n",
            "office/Screenshot_2026.png");
        row("desktop elsewhere", "user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n",
            "Schreibtisch/Screenshot.png");
        row("own choice", "", "", "mine/any name.png");
    }

    void settingsOfTools()
    {
        const auto [file, setting, capture] = fetched<QString, QString, QString>();
        const auto set = [&](Stage &stage) {
            QString text = setting;
            text.replace(u"HOME/"_s, stage.home.folder.path() + u'/');
            text.replace(u'$' + stage.home.folder.path(), u"$HOME"_s);
            if (file.isEmpty())
                stage.preferences.setObject(FolderCaptureQuery::locationKey(), u"~/mine"_s);
            else
                stage.home.write(u".config/"_s + file, text.toUtf8());
        };
        Stage early;
        early.home.write(capture);
        QVERIFY(early.start() && early.found().isEmpty());
        set(early);
        early.query.requestAccess();
        QVERIFY(early.finds({capture}));

        Stage late; // the folder comes after the setting, and the setting after the start
        QVERIFY(late.start());
        set(late);
        if (file.isEmpty())
            late.query.requestAccess();
        QTest::qWait(100);
        late.home.write(capture);
        QVERIFY(late.finds({capture}));
    }

    void followsFiles()
    {
        Stage stage;
        stage.home.write(kShot);
        QVERIFY(stage.start());
        QCOMPARE(stage.found(), QStringList{kShot});
        const QDateTime age = stage.query.results().first().created;
        QVERIFY(std::abs(age.secsTo(QDateTime::currentDateTimeUtc())) < 10);

        const QString second = u"Pictures/Screenshot_2.png"_s;
        stage.home.write(u"Pictures/.hidden.png"_s);
        const QString hidden = stage.home.path(u"Pictures/.hidden.png"_s);
        QVERIFY(QFile::rename(hidden, stage.home.path(second)) && stage.finds({second, kShot}));
        const QString linked = u"Screenshot_3.png"_s;
        const QString outside = stage.home.write(u"elsewhere/a"_s);
        QCOMPARE(::link(qPrintable(outside), qPrintable(stage.home.path(linked))), 0);
        QVERIFY(stage.finds({linked, second, kShot}));

        QVERIFY(QFile::remove(stage.home.path(second)) && stage.finds({linked, kShot}));
        QVERIFY(QFile::rename(stage.home.path(linked), stage.home.path(u"notes.png"_s)));
        QVERIFY(stage.finds({kShot}));
        const QDateTime before = stage.query.results().first().modified;
        QTest::qWait(20);
        stage.home.write(kShot, CaptureHome::picture({50, 50}));
        QTRY_VERIFY(stage.query.results().value(0).modified > before);
        QCOMPARE(stage.query.results().first().created, age);
    }

    void waitsForWholeFiles_data() { texts({"png", "jpg", "webp"}); }

    void waitsForWholeFiles()
    {
        const auto [format] = fetched<QString>();
        Stage stage;
        const QString name = u"Pictures/Screenshot."_s + format;
        const QByteArray bytes = CaptureHome::picture({400, 300}, format.toLatin1().constData());
        QVERIFY(bytes.size() > 40);
        stage.home.write(name, bytes.left(bytes.size() / 2));
        QVERIFY(stage.start() && stage.found().isEmpty());
        stage.home.write(name, bytes.chopped(1));
        QVERIFY(stage.findsNoMoreThan({}));
        QFile file(stage.home.path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes.chopped(20)) > 0 && file.flush());
        QVERIFY(stage.findsNoMoreThan({}) && file.write(bytes.right(20)) == 20 && file.flush());
        file.close();
        QVERIFY(stage.finds({name}));
    }

    void followsFolders()
    {
        Stage stage;
        QDir home(stage.home.folder.path());
        QVERIFY(stage.start() && home.rmdir(u"Pictures"_s));
        stage.home.write(kShot); // made with its folder, faster than any watch
        QVERIFY(stage.finds({kShot}) && home.rename(u"Pictures"_s, u"Old"_s) && stage.finds({}));
        stage.home.write(u"Old/Screenshot_2.png"_s);
        QVERIFY(stage.findsNoMoreThan({}) && home.rename(u"Old"_s, u"Pictures"_s));
        QVERIFY(stage.finds({u"Pictures/Screenshot_2.png"_s, kShot}));

        // A link to a folder elsewhere, as a second disk is joined; and one that leads nowhere.
        QVERIFY(home.rename(u"Pictures"_s, u"Disk"_s) && stage.finds({}));
        QVERIFY(QFile::link(u"Pictures"_s, stage.home.path(u"Pictures"_s)));
        QVERIFY(stage.findsNoMoreThan({}) && home.remove(u"Pictures"_s));
        QVERIFY(QFile::link(u"Disk"_s, stage.home.path(u"Pictures"_s)));
        QVERIFY(stage.finds({u"Pictures/Screenshot_2.png"_s, kShot}));
        QVERIFY(QFile::remove(stage.home.path(u"Disk/Screenshot_2.png"_s)) && stage.finds({kShot}));
    }

    void keepsTheNewest()
    {
        Stage stage;
        QStringList newest;
        for (int i = 0; i < 60; ++i) {
            newest.prepend(u"Pictures/Screenshot_%1.png"_s.arg(i));
            stage.home.write(newest.first());
        }
        QVERIFY(stage.start());
        QCOMPARE(stage.found(), newest.first(48));
        for (int i = 0; i < 30; ++i)
            QFile::remove(stage.home.path(newest.takeFirst()));
        QVERIFY(stage.finds(newest));
    }

    void skipsWhatIsNoFile()
    {
        Stage stage;
        const auto path = [&](const char *name) {
            return stage.home.path(u"Pictures/Screenshot_"_s + QString::fromLatin1(name)).toUtf8();
        };
        const auto makeAll = [&] {
            QCOMPARE(::mkfifo(path("fifo.png").constData(), 0600), 0);
            QCOMPARE(::symlink("/dev/zero", path("zero.png").constData()), 0);
            QCOMPARE(::symlink("Screenshot_loop.png", path("loop.png").constData()), 0);
            QCOMPARE(::mkdir(path("folder.png").constData(), 0700), 0);
        };
        makeAll();
        stage.home.write(u"Pictures/Screenshot_empty.png"_s, {});
        stage.home.write(kShot);
        QVERIFY(stage.start());
        QCOMPARE(stage.found(), QStringList{kShot});
        QVERIFY(QDir(stage.home.path(u"Pictures"_s)).removeRecursively() && stage.finds({}));
        stage.home.write(kShot);
        makeAll();
        QVERIFY(stage.finds({kShot}) && stage.findsNoMoreThan({kShot}));
    }

    void access()
    {
        Stage stage;
        const QByteArray pictures = stage.home.path(u"Pictures"_s).toUtf8();
        stage.home.write(kShot);
        ::chmod(pictures.constData(), 0300);
        const bool isRoot = ::geteuid() == 0; // who may read everything
        if (isRoot) {
            for (const QByteArray &path : {stage.home.folder.path().toUtf8(), pictures})
                QCOMPARE(::chown(path.constData(), 65534, 65534), 0);
            QCOMPARE(::seteuid(65534), 0);
        }
        const auto restore = qScopeGuard([&] { std::ignore = isRoot ? ::seteuid(0) : 0; });
        QVERIFY(stage.start() && stage.query.isAccessMissing() && stage.found().isEmpty());
        ::chmod(pictures.constData(), 0700);
        QVERIFY(stage.finds({kShot}) && !stage.query.isAccessMissing());
    }

    void withoutTheDesktopsReaderNothingStaysOpen()
    {
        const CaptureHome home;
        home.write(u"glib-2.0/schemas/org.mate.screenshot.gschema.xml"_s, "<schemalist/>");
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", QFile::encodeName(home.path(u"Pictures"_s)));
        const auto restore = qScopeGuard([&] { qputenv("PATH", path); });
        const auto descriptors = [] {
            return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
        };
        const qsizetype before = descriptors();
        for (int i = 0; i < 10; ++i)
            QCOMPARE(readScreenshotTools(), ScreenshotTools());
        QCOMPARE(descriptors(), before);
    }

    void stopsAndStartsAgain()
    {
        Stage stage;
        stage.home.write(kShot);
        QVERIFY(stage.start());
        stage.query.stop();
        QVERIFY(stage.found().isEmpty());
        const int calls = stage.calls;
        stage.home.write(u"Screenshot.png"_s);
        stage.query.requestAccess();
        QTest::qWait(200);
        QCOMPARE(stage.calls, calls);
        for (int i = 0; i < 20; ++i) {
            stage.query.start();
            stage.query.stop();
        }
        stage.query.start();
        QVERIFY(stage.finds({u"Screenshot.png"_s, kShot}));
        QCOMPARE(stage.calls, calls + 1);
    }
};

REGISTER_TEST(FolderCaptureQueryTest);
#include "FolderCaptureQueryTest.moc"
