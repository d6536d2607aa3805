#include "NotchKit/Tools/Mirror/MirrorModel.h"
#include "Support/Core.h"

using Authorization = CameraAuthorization;
using State = MirrorModel::State;

namespace {

struct Stage
{
    Fakes::Core core;
    Fakes::FakeCamera &camera = core.camera;
    MirrorModel &mirror = *core.services.model<MirrorModel>();

    void show(std::optional<NotchTool> tool = NotchTool::mirror) { core.services.show(tool); }
    void answer(bool yes)
    {
        camera.questions.answerLast(yes);
        QTest::qWait(1);
    }
    void allow(Authorization status)
    {
        camera.status = status;
        answer(status == Authorization::authorized);
    }
    /// What the session was told since the last call.
    QString told() { return std::exchange(camera.called, {}).join(u' '); }
    /// The same, and what the pane shows since.
    std::pair<QString, State> seen() { return {told(), mirror.state()}; }
    void showFirst()
    {
        show();
        answer(true);
        QCOMPARE(told(), u"configure start"_s);
    }
};

} // namespace

/// The mirror by what it tells the camera's session.
class MirrorModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsWhileItIsShown()
    {
        Stage stage;
        stage.mirror.stop();
        QCOMPARE(stage.told(), QString());
        stage.showFirst();
        QVERIFY(stage.mirror.running() && stage.mirror.state() == State::Picture);
        stage.show();
        stage.mirror.start();
        QCOMPARE(stage.told(), QString());
        // Every way to leave it; the input is kept.
        for (const auto &leave : std::initializer_list<std::function<void()>>{
                 [&] { stage.show(NotchTool::timer); }, [&] { stage.show({}); },
                 [&] { stage.core.services.stop(); }, [&] { stage.mirror.stop(); }}) {
            stage.core.services.start();
            leave();
            leave();
            QVERIFY(!stage.mirror.running());
            stage.show();
            QCOMPARE(stage.told(), u"stop start"_s);
        }
    }

    void asksForAccess_data()
    {
        columns<Authorization, QString, State>();
        QTest::newRow("allowed") << Authorization::authorized << u"configure"_s << State::Waiting;
        QTest::newRow("denied") << Authorization::denied << QString() << State::NoAccess;
        QTest::newRow("restricted") << Authorization::restricted << QString() << State::NoAccess;
    }

    void asksForAccess()
    {
        const auto [answer, told, state] = fetched<Authorization, QString, State>();
        Stage stage;
        stage.camera.status = Authorization::notDetermined;
        stage.show();
        stage.show();
        QCOMPARE(stage.seen(), std::pair(u"look"_s, State::Waiting));
        stage.allow(answer);
        QCOMPARE(stage.seen(), std::pair(told, state));
        // What the user changes elsewhere takes effect at the next showing.
        stage.show({});
        stage.camera.called.clear();
        stage.camera.status = Authorization::authorized;
        stage.show();
        QCOMPARE(stage.told(), u"configure"_s);
    }

    void theUserIsAskedWithTheKeyboardOnly()
    {
        Stage stage;
        stage.camera.status = Authorization::notDetermined;
        stage.show();
        stage.mirror.askUser();
        stage.answer(false); // Only the user could tell.
        QCOMPARE(stage.seen(), std::pair(u"look"_s, State::Unasked));
        stage.mirror.askUser();
        stage.mirror.askUser();
        stage.allow(Authorization::authorized);
        QCOMPARE(stage.seen(), std::pair(u"access configure"_s, State::Waiting));

        stage.show({});
        stage.camera.status = Authorization::notDetermined;
        stage.show();
        stage.allow(Authorization::deniedBefore);
        QCOMPARE(stage.mirror.state(), State::Refused);
    }

    void theChosenCameraIsTaken()
    {
        Stage stage;
        stage.camera.found = {{u"usb"_s, u"Eye"_s}, {u"pci"_s, u"Lid"_s}};
        stage.showFirst();
        QCOMPARE(stage.mirror.choices(), QStringList());
        stage.mirror.listCameras();
        QTRY_COMPARE(stage.mirror.choices(), QStringList({u"Default Camera"_s, u"Eye"_s, u"Lid"_s}));
        stage.mirror.chooseCamera(2);
        QCOMPARE(stage.camera.chosen, u"pci"_s);
        QCOMPARE(stage.core.settings.mirrorCamera(), u"pci"_s);
        QCOMPARE(stage.told(), u"stop configure"_s);
        stage.answer(true);
        QCOMPARE(stage.seen(), std::pair(u"start"_s, State::Picture));
        stage.mirror.chooseCamera(0);
        QCOMPARE(stage.camera.chosen, QString());
        stage.show({});
        QVERIFY(!stage.mirror.running());
    }

    void anAnswerAfterTheShowingStartsNothing()
    {
        Stage stage;
        stage.camera.status = Authorization::notDetermined;
        stage.show();
        stage.show(NotchTool::timer);
        stage.show(); // and the question still stands
        stage.show({});
        stage.allow(Authorization::authorized);
        QCOMPARE(stage.told(), u"look"_s);
        // The same while the camera is looked for.
        stage.show();
        stage.show({});
        QVERIFY(stage.camera.questions.isGivenUp(stage.camera.questions.count() - 1));
        stage.answer(true);
        QCOMPARE(stage.told(), u"configure"_s);
        stage.showFirst();
    }

    void noCamera()
    {
        Stage stage;
        stage.show();
        stage.answer(false);
        QVERIFY(stage.mirror.noCamera() && stage.mirror.state() == State::NoCamera);
        QCOMPARE(stage.told(), u"configure"_s);
        // One that is plugged in later is shown, although it stays known that there was none.
        stage.show({});
        stage.showFirst();
        QVERIFY(stage.mirror.noCamera() && stage.mirror.state() == State::Picture);
    }

    void aCameraThatIsPulledOut()
    {
        Stage stage;
        stage.showFirst();
        stage.camera.handlers.lost();
        QVERIFY(!stage.mirror.running() && !stage.mirror.noCamera());
        QCOMPARE(stage.mirror.state(), State::NoCamera);
        QCOMPARE(stage.told(), u"stop"_s);
        stage.show();
        QCOMPARE(stage.seen(), std::pair(u"start"_s, State::Picture));
    }

    void comesBackWhileItIsShown()
    {
        Stage stage;
        stage.showFirst();
        stage.camera.handlers.lost();
        for (const int pause : {1000, 2000, 5000, 5000}) {
            stage.core.wait(pause - 1);
            QCOMPARE(stage.told(), u"stop"_s);
            stage.core.wait(1);
            QCOMPARE(stage.seen(), std::pair(u"start"_s, State::NoCamera)); // the pane does not flicker
            stage.camera.handlers.lost();
        }
        stage.core.wait(5000);
        stage.camera.handlers.picture({});
        QCOMPARE(stage.mirror.state(), State::Picture);
        QCOMPARE(stage.told(), u"stop start"_s);
        // After a picture, and at a new showing, the pauses are short again.
        stage.camera.handlers.lost();
        stage.core.wait(1000);
        QCOMPARE(stage.told(), u"stop start"_s);
        stage.camera.handlers.lost();
        stage.show();
        stage.core.wait(60'000);
        QCOMPARE(stage.told(), u"stop start"_s);
        stage.camera.handlers.lost();
        stage.core.wait(1000);
        QCOMPARE(stage.told(), u"stop start"_s);
        // Closed, it stays off.
        stage.camera.handlers.lost();
        stage.show({});
        stage.core.wait(60'000);
        QCOMPARE(stage.told(), u"stop"_s);
    }

    void findsACameraWhileItIsShown()
    {
        Stage stage;
        stage.show();
        for (const int pause : {1000, 2000, 5000, 5000}) {
            QCOMPARE(stage.told(), u"configure"_s);
            stage.answer(false);
            stage.core.wait(pause - 1);
            QCOMPARE(stage.told(), QString());
            stage.core.wait(1);
            QCOMPARE(stage.mirror.state(), State::NoCamera);
        }
        stage.answer(true);
        QCOMPARE(stage.told(), u"configure start"_s);
        QVERIFY(stage.mirror.noCamera() && stage.mirror.state() == State::Picture);
    }

    void asksForAccessEachTimeItComesBack()
    {
        Stage stage;
        stage.showFirst();
        const auto comesBack = [&](Authorization answer) {
            stage.camera.status = Authorization::notDetermined;
            stage.camera.handlers.lost();
            stage.core.wait(1000);
            QCOMPARE(stage.seen(), std::pair(u"stop look"_s, State::NoCamera));
            stage.allow(answer);
        };
        comesBack(Authorization::authorized);
        QCOMPARE(stage.told(), u"start"_s);
        stage.camera.handlers.picture({});
        comesBack(Authorization::denied);
        QCOMPARE(stage.mirror.state(), State::NoAccess);
        stage.core.wait(60'000);
        QCOMPARE(stage.told(), QString());
    }
};

REGISTER_TEST(MirrorModelTest);
#include "MirrorModelTest.moc"
