#include "NotchKit/Tools/Captures/CapturesModel.h"
#include "NotchKit/Tools/Timer/TimerModel.h"
#include "Support/Core.h"

namespace {

QString pathOf(int minute) { return u"/shots/%1 ü#.png"_s.arg(minute); }

/// The core over a disk with screenshots, each named for the minute it was made in.
struct Stage : Fakes::Core
{
    CapturesModel &model = *services.model<CapturesModel>();

    explicit Stage(const QList<int> &minutes = {}, bool running = true)
    {
        lay(minutes);
        services.start();
        if (running)
            captures.handler();
    }

    ScreenCapture capture(int minute) const
    {
        const QDateTime date = QDateTime::fromSecsSinceEpoch(1'700'000'000 + minute * 60, kUtc);
        return {pathOf(minute), date, date};
    }
    void lay(const QList<int> &minutes)
    {
        captures.found = each(minutes, [this](int minute) { return capture(minute); });
    }
    void find(const QList<int> &minutes)
    {
        lay(minutes);
        captures.handler();
    }
    /// Seconds of the clock; what the last answer brings is taken in.
    void pass(int seconds)
    {
        wait(seconds * 1000);
        QCoreApplication::processEvents();
    }
    QStringList ids() const { return each(model.items(), &CaptureItem::id); }
    QString fresh() const { return model.fresh() ? model.fresh()->id : QString(); }
};

QStringList paths(const QList<int> &minutes) { return each(minutes, pathOf); }

} // namespace

class CapturesModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newestOfWhatIsFound()
    {
        QList<int> found;
        for (int minute = 100; minute > 40; --minute)
            found.append(minute);
        const QList<int> newest = found.first(24);
        std::swap(found[3], found[30]); // the query's order is not relied on
        const Stage stage(found);
        QCOMPARE(stage.ids(), paths(newest));
        QCOMPARE(stage.model.items().first().url.toLocalFile(), pathOf(100));
        QCOMPARE(stage.model.items().first().date, stage.capture(100).created);
    }

    void announcesWhatIsNew_data()
    {
        using Minutes = QList<int>;
        const auto row =
            columns<Minutes, Minutes, Minutes, int>(); // the last: what is announced, 0 for nothing
        row("first gathering", {3, 2}, {3, 2}, {3, 2}, 0);
        row("one more", {3, 2}, {4, 3, 2}, {4, 3, 2}, 4);
        row("into nothing", {}, {1}, {1}, 1);
        row("two more", {1}, {2, 1}, {3, 2, 1}, 3);
        row("both at once", {1}, {1}, {3, 2, 1}, 3);
        row("an older one", {5, 1}, {5, 4, 1}, {5, 4, 1}, 0);
        row("an older one while announced", {1}, {5, 1}, {5, 4, 1}, 5);
        row("deleted while announced", {1}, {2, 1}, {1}, 0);
        row("all deleted", {1}, {2, 1}, {}, 0);
        row("an older one deleted", {5, 1}, {5}, {5}, 0);
    }

    void announcesWhatIsNew()
    {
        const auto [first, then, atLast, fresh] = fetched<QList<int>, QList<int>, QList<int>, int>();
        Stage stage(first);
        QVERIFY(!stage.model.fresh() && !stage.services.hasActivity());
        stage.find(then);
        stage.find(atLast);
        QCOMPARE(stage.fresh(), fresh == 0 ? QString() : pathOf(fresh));
        QCOMPARE(stage.services.hasActivity(), fresh != 0);
    }

    void announcementEnds()
    {
        Stage stage({1});
        stage.services.model<TimerModel>()->start(600);
        QCOMPARE(stage.services.activityTool(), NotchTool::timer);
        stage.find({2, 1});
        QCOMPARE(stage.services.activityTool(), NotchTool::captures);
        stage.pass(4);
        stage.find({3, 2, 1});
        stage.pass(6); // six seconds on the dot are not over yet
        QCOMPARE(stage.fresh(), pathOf(3));
        stage.pass(1);
        QCOMPARE(stage.services.activityTool(), NotchTool::timer);

        stage.find({4, 3});
        stage.captures.found[0].path = u"/shots/renamed.png"_s;
        stage.captures.handler();
        QCOMPARE(stage.fresh(), u"/shots/renamed.png"_s);
        stage.settings.setAnnounceScreenshots(false);
        QCOMPARE(stage.services.activityTool(), NotchTool::timer);
        stage.pass(7);
        QVERIFY(!stage.model.fresh());
    }

    void runsWithTheHubAndTheSetting()
    {
        Stage stage({1});
        stage.find({2, 1});
        QVERIFY(stage.captures.running && stage.services.hasActivity());
        stage.settings.setEnabled(NotchTool::captures, false);
        QVERIFY(!stage.captures.running && !stage.services.hasActivity() && stage.model.items().isEmpty());
        stage.captures.handler(); // one that was under way
        QVERIFY(stage.model.items().isEmpty());
        stage.services.stop();
        stage.settings.setEnabled(NotchTool::captures, true);
        QVERIFY(!stage.captures.running);
        stage.services.start();
        QVERIFY(stage.captures.running);
        stage.find({3, 2, 1});
        QVERIFY2(!stage.model.fresh(), "it was taken while nothing ran");
        QCOMPARE(stage.model.items().size(), 3);
        stage.services.stop();
        QVERIFY(!stage.captures.running);
    }

    void thumbnails()
    {
        Stage stage({3, 2, 1});
        QCOMPARE(stage.thumbnails.asked, paths({1, 2, 3})); // the newest last
        const auto shown = [&](int minute) {
            return stage.model.thumbnails().value(pathOf(minute)).value<QImage>();
        };
        const QImage red(4, 3, QImage::Format_RGB32);
        stage.thumbnails.questions.answer(2, red);
        stage.thumbnails.questions.answer(1, {});
        stage.pass(1);
        QCOMPARE(shown(3), red);
        QCOMPARE(stage.model.thumbnails().size(), 1);

        stage.captures.handler();
        QCOMPARE(stage.thumbnails.asked.size(), 3);
        stage.captures.found[0].modified = stage.captures.found[0].modified.addSecs(9);
        stage.captures.handler();
        QCOMPARE(stage.thumbnails.asked.mid(3), paths({3}));
        const QImage blue(5, 5, QImage::Format_RGB32);
        stage.thumbnails.questions.answer(3, blue);
        stage.pass(1);
        QCOMPARE(shown(3), blue);

        stage.find({2});
        QVERIFY(stage.model.thumbnails().isEmpty() && stage.thumbnails.questions.isGivenUp(0));
        stage.find({2, 1});
        stage.services.stop();
        QVERIFY(stage.thumbnails.questions.isGivenUp(stage.thumbnails.questions.count() - 1));
        stage.thumbnails.questions.answer(4, red);
        stage.pass(1);
        QVERIFY(stage.model.thumbnails().isEmpty());
    }

    void access()
    {
        Stage stage({}, false);
        stage.captures.accessMissing = true;
        stage.captures.handler();
        QVERIFY(stage.model.needsAccess());
        const int requests = stage.captures.requests;
        stage.services.show(NotchTool::timer);
        QCOMPARE(stage.captures.requests, requests);
        stage.services.show(NotchTool::captures);
        QCOMPARE(stage.captures.requests, requests + 1);
        stage.captures.accessMissing = false;
        stage.find({2, 1});
        QVERIFY(!stage.model.needsAccess() && !stage.model.fresh());
        stage.model.openPrivacySettings();
        QCOMPARE(stage.workspace.opened.first().toString(),
                 u"x-apple.systempreferences:com.apple.preference.security?Privacy_FilesAndFolders"_s);
    }

    void actions()
    {
        Stage stage({2, 1});
        const QUrl url = QUrl::fromLocalFile(pathOf(1));
        for (const QString &id : {pathOf(1), pathOf(7)}) {
            stage.model.open(id);
            stage.model.copy(id);
            stage.model.reveal(id);
            stage.model.edit(id);
            stage.model.trash(id);
        }
        QCOMPARE(stage.workspace.edited, QList<QUrl>{url});
        QCOMPARE(stage.workspace.trashed, QList<QUrl>{url});
        stage.workspace.hasTrash = false;
        stage.model.trash(pathOf(1));
        QTRY_COMPARE(stage.model.fault(), url.fileName() + u" could not be moved to the trash."_s);
        QVERIFY(!stage.model.canEdit());
        stage.model.visibleToolChanged(NotchTool::captures);
        QVERIFY(stage.model.fault().isEmpty());
        QTRY_VERIFY(stage.model.canEdit());
        QCOMPARE(stage.workspace.opened, QList<QUrl>{url});
        QCOMPARE(stage.workspace.revealed.value(0), QList<QUrl>{url});
        Fakes::finishWork();
        QCOMPARE(stage.pasteboard.written.files, QList<QUrl>{url});
        QVERIFY(stage.pasteboard.written.pictures.isEmpty()); // There is no such file.
        QCOMPARE(stage.pasteboard.count, 2);

        const QTemporaryDir folder;
        const QString path = folder.filePath(u"shot.jpg"_s);
        const QByteArray bytes = encoded(plainImage({40, 30}), "jpg");
        QVERIFY(writeFile(path, bytes));
        stage.captures.found[0].path = path;
        stage.captures.handler();
        stage.model.copy(path);
        Fakes::finishWork();
        QCOMPARE(stage.pasteboard.written.files, QList<QUrl>{QUrl::fromLocalFile(path)});
        const auto pictures = stage.pasteboard.writtenPictures();
        QCOMPARE(pictures.value(0), (EncodedPicture{bytes, u"image/jpeg"_s}));
        QCOMPARE(QImage::fromData(pictures.value(1).data, "png").size(), QSize(40, 30));
    }
};

REGISTER_TEST(CapturesModelTest);
#include "CapturesModelTest.moc"
