#include "WindowStage.h"

class CapturesPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickMenuAndMessages()
    {
        WindowStage stage;
        auto &captures = stage.core.captures;
        const QUrl url = QUrl::fromLocalFile(u"/shots/ä 1.png"_s);
        const QDateTime date = stage.core.clock.now();
        captures.found = {{u"/shots/2.png"_s, date, date}, {url.toLocalFile(), date.addSecs(-9), date}};
        captures.handler();
        stage.open(NotchTool::captures);
        const auto click = [&](const QString &type, qsizetype index, Qt::MouseButton button) {
            const QQuickItem *item = stage.all(type).value(index);
            if (item)
                stage.click(item, {20, 9}, button);
            return item != nullptr;
        };
        const auto choose = [&](int entry) {
            const bool opened = click(u"CaptureThumb"_s, 1, Qt::RightButton) && QTest::qWaitFor([&] {
                                    const auto *focused = stage.window->activeFocusItem();
                                    return focused && focused->property("text") == "Show in File Manager"_L1;
                                });
            for (int i = 0; i < entry; ++i)
                stage.key(Qt::Key_Down);
            stage.key(Qt::Key_Return);
            return opened && QTest::qWaitFor([&] {
                       return !stage.window->activeFocusItem()->inherits("QQuickAbstractButton");
                   });
        };
        QTRY_COMPARE(stage.all(u"CaptureThumb"_s).size(), 2);
        QVERIFY(choose(0));
        QCOMPARE(stage.core.workspace.revealed.value(0), QList<QUrl>{url});
        QVERIFY(choose(3));
        QTRY_COMPARE(stage.core.pasteboard.written.files, QList<QUrl>{url});
        QVERIFY(stage.core.model().expanded());
        QVERIFY(choose(4));
        QCOMPARE(stage.core.workspace.trashed, QList<QUrl>{url});
        QVERIFY(choose(5));
        QCOMPARE(stage.core.workspace.edited, QList<QUrl>{url});
        QVERIFY(!stage.core.model().expanded());
        stage.open(NotchTool::captures);

        captures.accessMissing = true;
        captures.handler();
        QTRY_VERIFY(stage.all(u"CaptureThumb"_s).isEmpty());
        QVERIFY(click(u"TextButton"_s, 0, Qt::LeftButton));
        QVERIFY(stage.core.workspace.opened.value(0).toString().endsWith("Privacy_FilesAndFolders"_L1));
        captures.accessMissing = false;
        captures.handler();
        QTRY_COMPARE(stage.all(u"CaptureThumb"_s).size(), 2);
        QVERIFY(click(u"CaptureThumb"_s, 1, Qt::LeftButton));
        QCOMPARE(stage.core.workspace.opened.value(1), url);
        QVERIFY(!stage.core.model().expanded());
    }
};

REGISTER_TEST(CapturesPaneTest);
#include "CapturesPaneTest.moc"
