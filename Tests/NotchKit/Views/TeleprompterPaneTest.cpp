#include "NotchKit/Tools/Teleprompter/PrompterScript.h"
#include "NotchKit/Tools/Teleprompter/TeleprompterModel.h"
#include "WindowStage.h"

namespace {

/// The teleprompter's pane with the keyboard.
struct Stage : WindowStage
{
    TeleprompterModel &prompter = *core.services.model<TeleprompterModel>();
    NotchSettings &settings = core.settings;

    explicit Stage(const QString &script)
        : WindowStage({{u"notch.prompterText"_s, script}})
    {
        open(NotchTool::teleprompter);
    }

    PrompterScript *script() const { return find<PrompterScript>(); }
    void click(const QQuickItem *item, double x = 0.5) const
    {
        WindowStage::click(item, {item->width() * x, item->height() / 2});
    }
};

} // namespace

class TeleprompterPaneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyPaneTakesTheScript()
    {
        Stage stage{QString()};
        QVERIFY(!stage.button(u"Play"_s) && !stage.button(u"Restart"_s) && !stage.script()->isVisible());
        for (const char letter : "Hi all"_ba)
            QTest::keyClick(stage.window.get(), letter);
        QCOMPARE(stage.settings.prompterText(), u"Hi all"_s);
        QVERIFY(stage.prompter.editing() && !stage.script()->isVisible());
        stage.click(stage.button(u"Done"_s));
        QVERIFY(stage.script()->isVisible() && !stage.find(u"PlainEditor"_s));
        QTRY_VERIFY(!std::isinf(stage.prompter.maximumOffset()));
        stage.click(stage.button(u"Edit"_s));
        QVERIFY(stage.find(u"PlainEditor"_s));
    }

    void controlsDrawAndScrollTheScript()
    {
        Stage stage(u"word "_s.repeated(3000));
        QTRY_VERIFY(stage.prompter.maximumOffset() > 1000 && !std::isinf(stage.prompter.maximumOffset()));
        const QRect top(stage.script()->mapToScene({}).toPoint(), QSize(700, 40));
        const auto shows = [&](int gray) { // or anything brighter
            const QImage picture = stage.window->grabWindow().copy(top);
            const auto isBright = [&](int x, int y) { return qGray(picture.pixel(x, y)) >= gray; };
            return !areaWhere(picture.size(), isBright).isEmpty();
        };
        QVERIFY2(!shows(10), "the first line stands a third of the way down");
        stage.click(stage.button(u"Play"_s));
        QSignalSpy frames(stage.window.get(), &QQuickWindow::frameSwapped);
        stage.core.wait(2000);
        QCOMPARE(qRound(stage.prompter.offset()), 56);
        QTRY_VERIFY(stage.script()->shownOffset() > 50);
        QTRY_VERIFY(frames.size() > 3);
        QVERIFY2(shows(101), "lines have come up");
        QTest::keyClick(stage.window.get(), Qt::Key_Space);
        QVERIFY(!stage.prompter.playing());
        QTRY_COMPARE(stage.script()->shownOffset(), stage.prompter.offset());
        const auto rests = [&] {
            frames.clear();
            QTest::qWait(300);
            return frames.size() < 2;
        };
        QTest::qWait(700);
        QTRY_VERIFY2(rests(), "it draws although nothing moves"); // once the button's tip has come

        stage.prompter.scrollTo(500);
        stage.click(stage.button(u"Larger text"_s));
        QCOMPARE(stage.settings.prompterFontSize(), 24.0);
        QTRY_VERIFY2(stage.prompter.offset() > 520, "the line that was being read has moved");
        stage.click(stage.button(u"Restart"_s));
        QCOMPARE(stage.script()->shownOffset(), 0.0);
        auto *slider = stage.find(u"SlimSlider"_s);
        stage.click(slider, 0.98);
        QVERIFY(stage.settings.prompterSpeed() > 130);
        slider->forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(stage.window.get(), Qt::Key_Left);
        QVERIFY(stage.settings.prompterSpeed() < 140);
    }
};

REGISTER_TEST(TeleprompterPaneTest);
#include "TeleprompterPaneTest.moc"
