#include "NotchKit/Tools/Mirror/CameraPreview.h"
#include "WindowStage.h"

namespace {

/// The mirror's pane before the camera has been found.
struct Stage : WindowStage
{
    Stage()
    {
        core.controller.open(NotchTool::mirror);
        if (!QTest::qWaitFor([this] { return outline == QRectF(60, 0, 760, 330) && preview(); }, 60'000))
            qFatal("the notch did not open");
    }

    CameraPreview *preview() const { return find<CameraPreview>(); }
    QRect area() const { return preview()->mapRectToScene(preview()->boundingRect()).toRect(); }
    void take(QColor colour)
    {
        QImage picture(core.camera.shapes.constLast().size, QImage::Format_ARGB32_Premultiplied);
        picture.fill(colour);
        core.camera.handlers.picture(picture);
    }
    QString message() const
    {
        QQuickItem *item = find(u"PaneMessage"_s);
        return item ? item->property("text").toString() : QString();
    }
};

} // namespace

/// The mirror's pane: the camera's pictures, or why there are none.
class MirrorPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsOnePictureAfterTheOther()
    {
        Stage stage;
        const auto &shapes = stage.core.camera.shapes;
        stage.core.camera.questions.answerLast(true);
        QTRY_COMPARE(shapes.size(), 1);
        QCOMPARE(shapes.constLast(), (PictureShape{stage.area().size(), 12}));
        const auto middle = [&] { return stage.window->grabWindow().pixelColor(stage.area().center()); };
        QVERIFY(middle() != QColor(Qt::red));
        for (const QColor &colour : {QColor(Qt::red), QColor(Qt::blue)}) {
            const qsizetype asked = shapes.size();
            stage.take(colour);
            QCOMPARE(shapes.size(), asked); // not before this one has been drawn
            QTRY_COMPARE(shapes.size(), asked + 1);
            QCOMPARE(middle(), colour);
        }
        stage.core.services.model<MirrorModel>()->stop();
        QVERIFY(!stage.preview()->hasPicture());
        QTRY_VERIFY(middle() != QColor(Qt::blue));
    }

    void saysWhyThereIsNone()
    {
        Stage stage;
        QCOMPARE(stage.message(), QString());
        stage.core.camera.questions.answerLast(false);
        QTRY_COMPARE(stage.message(), u"No camera found."_s);
        stage.core.camera.status = CameraAuthorization::denied;
        stage.core.services.model<MirrorModel>()->start();
        QCOMPARE(stage.message(), u"Allow %1 to use the camera in\nthe desktop’s privacy settings."_s.arg(
                                      QCoreApplication::applicationName()));
        QMetaObject::invokeMethod(stage.find(u"PaneMessage"_s), "action");
        QVERIFY(stage.core.workspace.opened.value(0).toString().endsWith(u"?Privacy_Camera"_s));
    }
};

REGISTER_TEST(MirrorPaneTest);
#include "MirrorPaneTest.moc"
